# Read by ctest: adds an entry for each fixture that PROGRAM lists, run with ENVIRONMENT.
function(add_entry entry)
    add_test(${entry} ${ARGN})
    set_tests_properties(${entry} PROPERTIES TIMEOUT 300 ENVIRONMENT "${ENVIRONMENT}")
endfunction()

execute_process(
    COMMAND env ${ENVIRONMENT} ${PROGRAM} --gtest_list_tests
    OUTPUT_VARIABLE listing ERROR_VARIABLE complaints RESULT_VARIABLE result)

# A fixture stands at the beginning of its line and ends with a full stop; its cases stand below it, indented.
string(REGEX MATCHALL "(^|\n)[^ \n]+\\." fixtures "${listing}")
if(NOT result EQUAL 0 OR fixtures STREQUAL "")
    # Fails with the program's own words, or because it is not built.
    add_entry(${NAME}.lists_its_fixtures ${PROGRAM} --gtest_filter=)
endif()
foreach(fixture IN LISTS fixtures)
    string(REGEX REPLACE "\n|\\.$" "" fixture "${fixture}")
    add_entry(${NAME}.${fixture} ${PROGRAM} --gtest_brief=1 --gtest_filter=${fixture}.*)
endforeach()
