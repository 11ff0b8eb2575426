# What every test runs with.
# A busy machine makes the GUI thread stand still at times: the tests of the watchdog switch it on.
set(DISPLAYAPI_TEST_ENVIRONMENT
    DISPLAYAPI_WATCHDOG=0
    LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/suppressions/lsan.txt:print_suppressions=0
    # Third-party libraries are not built with the sanitizer, which therefore does not see how they lock.
    TSAN_OPTIONS=ignore_noninstrumented_modules=1:suppressions=${PROJECT_SOURCE_DIR}/tests/suppressions/tsan.txt:halt_on_error=1:second_deadlock_stack=1
    UBSAN_OPTIONS=print_stacktrace=1)

# The panels that whole programs are tried on. Their threads are the same on each.
set(DISPLAYAPI_TEST_PANELS plain narrow wp1)
if(DISPLAYAPI_SANITIZE STREQUAL "thread")
    set(DISPLAYAPI_TEST_PANELS plain)
endif()
