# Read by ctest: adds an entry for every AT_ONCE fixtures that PROGRAM lists, run with ENVIRONMENT.
function(add_entry entry)
    add_test(${entry} ${ARGN})
    set_tests_properties(${entry} PROPERTIES TIMEOUT 300 ENVIRONMENT "${ENVIRONMENT}")
endfunction()

execute_process(
    COMMAND env ${ENVIRONMENT} ${PROGRAM} --gtest_list_tests
    OUTPUT_VARIABLE listing ERROR_VARIABLE complaints RESULT_VARIABLE result)

# A fixture stands at the beginning of its line and ends with a full stop; its cases stand below it, indented.
string(REGEX MATCHALL "(^|\n)[^ \n]+\\." fixtures "${listing}")
list(TRANSFORM fixtures STRIP)
list(LENGTH fixtures count)
if(NOT result EQUAL 0 OR count EQUAL 0)
    # Fails with the program's own words, or because it is not built.
    add_entry(${NAME}.lists_its_fixtures ${PROGRAM} --gtest_filter=)
    return()
endif()
math(EXPR last "${count} - 1")
foreach(begin RANGE 0 ${last} ${AT_ONCE})
    list(SUBLIST fixtures ${begin} ${AT_ONCE} batch)
    list(GET batch 0 first)
    list(LENGTH batch size)
    math(EXPR others "${size} - 1")
    string(REGEX REPLACE "\\.$" "" entry "${NAME}.${first}")
    if(others GREATER 0)
        string(APPEND entry "+${others}")
    endif()
    string(REPLACE ";" "*:" filter "${batch}*")
    add_entry(${entry} ${PROGRAM} --gtest_brief=1 --gtest_filter=${filter})
endforeach()
