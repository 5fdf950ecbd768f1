# Renders the example form with ccpreview and checks that the image shows a whole form:
# big enough, and with the many colours of real widgets rather than a blank area.
#   cmake -DPREVIEW=<ccpreview> -DFORM=<form.ui> -DOUTPUT=<out.png> -P preview_example.cmake
file(REMOVE "${OUTPUT}")
execute_process(COMMAND "${PREVIEW}" "${FORM}" "${OUTPUT}"
    RESULT_VARIABLE result ERROR_VARIABLE errors)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "ccpreview failed (${result}): ${errors}")
endif()
if(NOT EXISTS "${OUTPUT}")
    message(FATAL_ERROR "ccpreview wrote no image")
endif()

find_program(IDENTIFY identify)
if(NOT IDENTIFY)
    message(FATAL_ERROR "ImageMagick's identify is needed to inspect the image")
endif()
execute_process(COMMAND "${IDENTIFY}" -format "%m %w %h %k" "${OUTPUT}"
    OUTPUT_VARIABLE facts RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "not a readable image: ${OUTPUT}")
endif()
separate_arguments(facts)
list(GET facts 0 format)
list(GET facts 1 width)
list(GET facts 2 height)
list(GET facts 3 colours)
message(STATUS "${OUTPUT}: ${format} ${width} x ${height}, ${colours} colours")
if(NOT format STREQUAL "PNG" OR width LESS 800 OR height LESS 500 OR colours LESS 200)
    message(FATAL_ERROR "the image does not look like the whole form: ${facts}")
endif()
