# cc_add_qtest(<name> SOURCES <files...> [LIBS <targets...>] [ENVIRONMENT <VAR=value...>])
#
# A QtTest executable registered with ctest. Every test runs offscreen; in the sanitizer
# build the leak suppressions for Qt and the system libraries apply.
set(CC_LSAN_SUPPRESSIONS "${CMAKE_CURRENT_LIST_DIR}/../tests/lsan.supp")

function(cc_add_qtest name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBS;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE Qt::Test CcQtCompat ${ARG_LIBS})
    add_test(NAME ${name} COMMAND ${name})
    set(env
        QT_QPA_PLATFORM=offscreen
        QT_LOGGING_RULES=qt.qpa.*=false
        ASAN_OPTIONS=detect_leaks=1:abort_on_error=0
        LSAN_OPTIONS=suppressions=${CC_LSAN_SUPPRESSIONS}:print_suppressions=0
        UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
        ${ARG_ENVIRONMENT})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${env}" TIMEOUT ${ARG_TIMEOUT})
endfunction()
