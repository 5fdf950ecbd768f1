# cc_add_qtest(<name> SOURCES <files...> [LIBS <targets...>] [ENVIRONMENT <VAR=value...>])
#
# A QtTest executable registered with ctest. Every test runs offscreen; in the sanitizer
# build the leak suppressions for Qt and the system libraries apply.
set(CC_LSAN_SUPPRESSIONS "${CMAKE_CURRENT_LIST_DIR}/../tests/lsan.supp")
# Allocations are recorded with the slow unwinder (fast_unwind_on_malloc=0): Qt is built without
# frame pointers, and only that unwinder reaches the Qt functions the suppressions name. Eight
# frames reach them and cost far less time than whole stacks.
set(CC_SANITIZER_ENVIRONMENT
    ASAN_OPTIONS=detect_leaks=1:abort_on_error=0:fast_unwind_on_malloc=0:malloc_context_size=8
    LSAN_OPTIONS=suppressions=${CC_LSAN_SUPPRESSIONS}:print_suppressions=0
    UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1)

function(cc_add_qtest name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBS;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE Qt::Test CcQtCompat ${ARG_LIBS})
    add_test(NAME ${name} COMMAND ${name})
    set(env
        QT_QPA_PLATFORM=offscreen
        QT_LOGGING_RULES=qt.qpa.*=false
        ${CC_SANITIZER_ENVIRONMENT}
        ${ARG_ENVIRONMENT})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${env}" TIMEOUT ${ARG_TIMEOUT})
endfunction()

# cc_find_linguist_tools(): Qt's lupdate and lrelease of the Qt in use, as the imported targets
# CC_LUPDATE and CC_LRELEASE name (the translation tests and benchmark run them). A missing one
# stops the configuration.
macro(cc_find_linguist_tools)
    find_package(Qt${CC_QT_MAJOR} QUIET COMPONENTS LinguistTools)
    set(CC_LUPDATE Qt${CC_QT_MAJOR}::lupdate)
    set(CC_LRELEASE Qt${CC_QT_MAJOR}::lrelease)
    if(NOT TARGET ${CC_LUPDATE} OR NOT TARGET ${CC_LRELEASE})
        message(FATAL_ERROR "Qt ${CC_QT_MAJOR}'s lupdate and lrelease are missing: install "
            "qttools5-dev-tools (Qt 5) or qt6-l10n-tools (Qt 6), or configure with "
            "-DCC_BUILD_TESTS=OFF -DCC_BUILD_BENCHMARKS=OFF")
    endif()
endmacro()

# cc_add_long_run(<target> <test> <function> <VAR=value...>): a target that runs one function
# of a QtTest suite offscreen, with the given variables and no time limit, for the long
# seeded runs that ctest leaves out.
# In the sanitizer build a long run looks for memory errors and undefined behaviour with the
# fast unwinder: the slow one, which the leak suppressions need to reach Qt's functions, would
# make 10,000 forms take hours. Leaks are the ctest suites' to find, with full stacks.
if(CC_SANITIZE)
    set(CC_LONG_RUN_SANITIZER_ENVIRONMENT
        ASAN_OPTIONS=detect_leaks=0:abort_on_error=0
        UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1)
endif()
function(cc_add_long_run target test function)
    add_custom_target(${target}
        COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES=qt.qpa.*=false
                ${CC_LONG_RUN_SANITIZER_ENVIRONMENT}
                ${ARGN} QTEST_FUNCTION_TIMEOUT=86400000 $<TARGET_FILE:${test}> ${function}
        USES_TERMINAL)
    add_dependencies(${target} ${test})
endfunction()
