# Once a package is made: what its writer does differently from the tools of the distribution. A
# library's package says by its trigger that the loader's list of libraries is out of date, and needs
# no scripts that say it again; libraries in a folder of their own serve no other package. The package
# is then written anew with the owner root and, if SOURCE_DATE_EPOCH is set, with no later date in it.

set(folder ${CPACK_TEMPORARY_DIRECTORY}-finish)
foreach(package ${CPACK_PACKAGE_FILES})
    file(REMOVE_RECURSE ${folder})
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
    set(control ${folder}/DEBIAN)
    if(EXISTS ${control}/postinst)
        file(WRITE ${control}/triggers "activate-noawait ldconfig\n")
        file(REMOVE ${control}/postinst ${control}/postrm)
    else()
        file(REMOVE ${control}/shlibs)
    endif()
    execute_process(COMMAND dpkg-deb --root-owner-group
        -Z${CPACK_DEBIAN_COMPRESSION_TYPE} --build ${folder} ${package}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
file(REMOVE_RECURSE ${folder})
