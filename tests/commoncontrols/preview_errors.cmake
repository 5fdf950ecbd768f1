# ccpreview's failures: each bad input gives its own exit code and a message naming the
# problem, and writes no image.
#   cmake -DPREVIEW=<ccpreview> -DDATA=<folder with bad forms> -DOUTPUT=<png> -P preview_errors.cmake
function(expect_failure code pattern)
    file(REMOVE "${OUTPUT}")
    execute_process(COMMAND "${PREVIEW}" ${ARGN}
        RESULT_VARIABLE result ERROR_VARIABLE errors OUTPUT_QUIET)
    if(NOT result EQUAL code)
        message(FATAL_ERROR "${ARGN}: exit code ${result}, expected ${code}; ${errors}")
    endif()
    if(NOT errors MATCHES "${pattern}")
        message(FATAL_ERROR "${ARGN}: message '${errors}' does not match '${pattern}'")
    endif()
    if(EXISTS "${OUTPUT}")
        message(FATAL_ERROR "${ARGN}: an image was written")
    endif()
endfunction()

expect_failure(1 "usage: ccpreview \\[--translation file.qm\\] form.ui out.png")
expect_failure(1 "usage:" "${DATA}/malformed.ui")
expect_failure(1 "usage:" --translation)
expect_failure(1 "usage:" --translation "${DATA}/no-such.qm" "${DATA}/malformed.ui")
# A translation that is missing, or not a translation file at all.
expect_failure(1 "cannot load the translation .*no-such.qm"
    --translation "${DATA}/no-such.qm" "${DATA}/malformed.ui" "${OUTPUT}")
expect_failure(1 "cannot load the translation .*notaform.xml"
    --translation "${DATA}/notaform.xml" "${DATA}/malformed.ui" "${OUTPUT}")
expect_failure(2 "cannot open .*no-such-form.ui" "${DATA}/no-such-form.ui" "${OUTPUT}")
expect_failure(3 "malformed.ui is not a form: line [0-9]+, column [0-9]+" "${DATA}/malformed.ui" "${OUTPUT}")
expect_failure(3 "root element is <html>, not <ui>" "${DATA}/notaform.xml" "${OUTPUT}")
expect_failure(4 "unknown widget classes: VoCc::Gauge" "${DATA}/unknownclass.ui" "${OUTPUT}")
expect_failure(3 "nul.ui is not a form: line 7, column 16: a NUL byte" "${DATA}/nul.ui" "${OUTPUT}")
expect_failure(3 "truncated.ui is not a form: line 12, column [0-9]+: Premature end of document"
    "${DATA}/truncated.ui" "${OUTPUT}")

# Panes nested 20,000 deep, well-formed: refused before anything recurses that deep.
get_filename_component(folder "${OUTPUT}" DIRECTORY)
string(REPEAT "<widget class=\"VoCc::Pane\" name=\"pane\">" 20000 opening)
string(REPEAT "</widget>" 20000 closing)
file(WRITE "${folder}/deep.ui" "<ui version=\"4.0\">\n${opening}${closing}\n</ui>\n")
expect_failure(3 "cannot load .*deep.ui: line 2: elements nested more than [0-9]+ levels deep"
    "${folder}/deep.ui" "${OUTPUT}")
