# Makers' folders have letters beyond ASCII, which the writer of the package finds again in a UTF-8
# locale only. Its own message names nothing but the folder.
execute_process(COMMAND locale charmap OUTPUT_VARIABLE charmap OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT charmap STREQUAL UTF-8)
    message(FATAL_ERROR "Packages need a UTF-8 locale: LC_ALL=C.UTF-8 cpack -G DEB")
endif()
