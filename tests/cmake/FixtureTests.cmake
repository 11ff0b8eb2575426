# displayapi_fixture_tests(NAME): one CTest entry for each fixture of a GoogleTest program, "NAME.FIXTURE". A process for
# each case would cost more than the cases. ctest itself asks the program when it runs, so that building stays quick.
# With sanitizers, whose processes begin and end slowly, one for eight: "NAME.FIXTURE+7".
function(displayapi_fixture_tests name)
    set(at_once 1)
    if(NOT DISPLAYAPI_SANITIZE STREQUAL "")
        set(at_once 8)
    endif()
    set(list ${CMAKE_CURRENT_BINARY_DIR}/${name}-fixtures.cmake)
    file(GENERATE OUTPUT ${list} CONTENT
"set(NAME ${name})
set(PROGRAM [==[$<TARGET_FILE:${name}>]==])
set(AT_ONCE ${at_once})
set(ENVIRONMENT [==[${DISPLAYAPI_TEST_ENVIRONMENT}]==])
include([==[${PROJECT_SOURCE_DIR}/tests/cmake/ListFixtures.cmake]==])
")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${list})
    set_property(GLOBAL APPEND PROPERTY DISPLAYAPI_TEST_PROGRAMS $<TARGET_FILE:${name}>)
endfunction()

# After all programs: an entry that proves that the others leave out no case. ThreadSanitizer's programs have no others.
function(displayapi_check_fixture_tests)
    if(DISPLAYAPI_SANITIZE STREQUAL "thread")
        return()
    endif()
    get_property(programs GLOBAL PROPERTY DISPLAYAPI_TEST_PROGRAMS)
    add_test(NAME tests.entries_run_every_case
        COMMAND Python3::Interpreter -B ${PROJECT_SOURCE_DIR}/tests/cmake/entries_run_every_case.py
            ${CMAKE_CTEST_COMMAND} ${PROJECT_BINARY_DIR} ${programs})
    set_tests_properties(tests.entries_run_every_case PROPERTIES TIMEOUT 300 ENVIRONMENT "${DISPLAYAPI_TEST_ENVIRONMENT}")
endfunction()
