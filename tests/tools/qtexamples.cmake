# Runs ccformcheck on the .ui files of Qt's examples as Debian ships them, fetching the
# packages into FOLDER the first time, and compares its output with EXPECTED.
#   cmake -DCHECKER=... -DFOLDER=... -DEXPECTED=... -P qtexamples.cmake
file(GLOB examples "${FOLDER}/usr/lib/*/qt5/examples")
if(NOT examples)
    file(MAKE_DIRECTORY "${FOLDER}")
    execute_process(COMMAND apt-get download qtbase5-examples qttools5-examples
        WORKING_DIRECTORY "${FOLDER}" RESULT_VARIABLE failed ERROR_VARIABLE said)
    if(failed)
        # The package lists may name versions the archive no longer has: read them anew once.
        execute_process(COMMAND apt-get update -qq RESULT_VARIABLE failed)
        execute_process(COMMAND apt-get download qtbase5-examples qttools5-examples
            WORKING_DIRECTORY "${FOLDER}" RESULT_VARIABLE failed ERROR_VARIABLE said)
    endif()
    if(failed)
        message(FATAL_ERROR "apt-get download of Qt's examples failed: ${said}")
    endif()
    file(GLOB packages "${FOLDER}/*.deb")
    foreach(package ${packages})
        execute_process(COMMAND dpkg-deb -x "${package}" "${FOLDER}" RESULT_VARIABLE failed)
        if(failed)
            message(FATAL_ERROR "dpkg-deb could not unpack ${package}")
        endif()
    endforeach()
    file(GLOB examples "${FOLDER}/usr/lib/*/qt5/examples")
endif()

execute_process(COMMAND "${CHECKER}" .
    WORKING_DIRECTORY "${examples}" OUTPUT_VARIABLE output RESULT_VARIABLE status)
file(READ "${EXPECTED}" expected)
if(NOT output STREQUAL expected OR NOT status EQUAL 0)
    message(FATAL_ERROR "ccformcheck on Qt's examples (exit status ${status}) said:\n${output}\n"
        "expected (exit status 0):\n${expected}")
endif()
message(STATUS "${output}")
