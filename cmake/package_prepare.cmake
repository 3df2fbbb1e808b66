# Before packages are made: manual pages are compressed, as the distribution has them.
file(GLOB_RECURSE pages ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*.1)
foreach(page ${pages})
    if(page MATCHES "/man1/")
        execute_process(COMMAND gzip -9n ${page} COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()
