# Renders the example form with a translation installed: lupdate makes the form's .ts, every
# message gets a translation ("[source]"), lrelease makes the .qm, and ccpreview renders the
# form with and without it. Both succeed, and the translated picture differs.
#   cmake -DPREVIEW=<ccpreview> -DLUPDATE=<lupdate> -DLRELEASE=<lrelease> -DFORM=<form.ui>
#         -DFOLDER=<output folder> -P preview_translation.cmake
file(MAKE_DIRECTORY "${FOLDER}")
set(ts "${FOLDER}/preview.ts")
set(qm "${FOLDER}/preview.qm")
file(REMOVE "${ts}" "${qm}" "${FOLDER}/plain.png" "${FOLDER}/translated.png")

execute_process(COMMAND "${LUPDATE}" "${FORM}" -ts "${ts}" RESULT_VARIABLE result
    OUTPUT_QUIET ERROR_VARIABLE errors)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "lupdate failed (${result}): ${errors}")
endif()
file(STRINGS "${ts}" lines)
set(filled "")
set(translations 0)
foreach(line IN LISTS lines)
    if(line MATCHES "<source>(.*)</source>")
        set(source "${CMAKE_MATCH_1}")
    elseif(line MATCHES "<translation type=\"unfinished\"></translation>")
        string(REPLACE "<translation type=\"unfinished\"></translation>"
            "<translation>[${source}]</translation>" line "${line}")
        math(EXPR translations "${translations} + 1")
    endif()
    string(APPEND filled "${line}\n")
endforeach()
if(translations LESS 50)
    message(FATAL_ERROR "lupdate found ${translations} texts in ${FORM}")
endif()
file(WRITE "${ts}" "${filled}")
execute_process(COMMAND "${LRELEASE}" "${ts}" -qm "${qm}" RESULT_VARIABLE result
    OUTPUT_QUIET ERROR_VARIABLE errors)
if(NOT result EQUAL 0 OR NOT EXISTS "${qm}")
    message(FATAL_ERROR "lrelease failed (${result}): ${errors}")
endif()

foreach(run plain translated)
    if(run STREQUAL "translated")
        set(options --translation "${qm}")
    else()
        set(options "")
    endif()
    execute_process(COMMAND "${PREVIEW}" ${options} "${FORM}" "${FOLDER}/${run}.png"
        RESULT_VARIABLE result ERROR_VARIABLE errors)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "ccpreview ${options} failed (${result}): ${errors}")
    endif()
    if(NOT EXISTS "${FOLDER}/${run}.png")
        message(FATAL_ERROR "ccpreview ${options} wrote no image")
    endif()
endforeach()
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${FOLDER}/plain.png"
    "${FOLDER}/translated.png" RESULT_VARIABLE same)
if(same EQUAL 0)
    message(FATAL_ERROR "the translated form looks the same as the untranslated one")
endif()
