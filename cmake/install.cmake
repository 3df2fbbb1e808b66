# What `cmake --install` lays out. Each component becomes a package of its own (package.cmake):
#
#   runtime         the module
#   c_interface     the C interface, with module and host inside
#   reference_host  the five libraries of the reference host, in a folder that no loader searches,
#                   so that they serve those only who name them
#   workbench       the program
#   tools           radsel_check, radsel_batch
#   python          the Python package
#   data            sample catalogues, building, blocks and lists; help pages
#   development     what the programmer of another host needs
#   documentation   the pages under docs/
#   licences        the texts of the licences, which distributions have in a place of their own

include(CMakePackageConfigHelpers)

set(radsel_host_libraries HostPrefs HostCatalog HostFittings HostBase HostPrompts)

set_target_properties(radsel ${radsel_host_libraries} PROPERTIES
    VERSION ${PROJECT_VERSION}
    # Below 1.0 every minor version may change the records.
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set_target_properties(${radsel_host_libraries} PROPERTIES INSTALL_RPATH $ORIGIN)
set_target_properties(radsel PROPERTIES EXPORT_NAME module)

# The records that cross the boundary are made of arrays, archives and exceptions of platform/.
set_target_properties(radsel_platform PROPERTIES EXPORT_NAME platform)
target_compile_features(radsel_platform INTERFACE cxx_std_17)
target_link_libraries(radsel INTERFACE radsel_platform)

# On Windows a library lies with the programs, and what others link with is an archive.
install(TARGETS radsel EXPORT radselTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT runtime NAMELINK_COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    INCLUDES DESTINATION ${radsel_header_folder})
install(TARGETS ${radsel_host_libraries} EXPORT radselTargets
    LIBRARY DESTINATION ${radsel_host_folder}
        COMPONENT reference_host NAMELINK_COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT reference_host
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    INCLUDES DESTINATION ${radsel_header_folder})
# Who asks for this host gets all of it, also from a linker that keeps what the program itself calls.
target_link_options(reference_host INTERFACE LINKER:--no-as-needed)
install(TARGETS reference_host EXPORT radselTargets)
install(TARGETS radsel_platform EXPORT radselTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    INCLUDES DESTINATION ${radsel_header_folder})

# A static library that is installed to be linked keeps no notes for a debugger.
install(CODE "
    if(CMAKE_INSTALL_DO_STRIP)
        file(GLOB archives \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/libradsel*.a\")
        foreach(archive \${archives})
            execute_process(COMMAND \"${CMAKE_STRIP}\" --strip-debug --enable-deterministic-archives
                \"\${archive}\" COMMAND_ERROR_IS_FATAL ANY)
        endforeach()
    endif()" COMPONENT development)

# frame/ and host/ are the contract. Of platform/ there is what its records are made of, and what a
# host does with texts, numbers and files.
foreach(folder frame host)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/${folder} DESTINATION ${radsel_header_folder}
        COMPONENT development FILES_MATCHING PATTERN *.h)
endforeach()
set(radsel_platform_headers archive array bitmap byte_stream color exception export object text
    encoding file file_replacement format line_block line_text number_scan path)
list(TRANSFORM radsel_platform_headers PREPEND ${PROJECT_SOURCE_DIR}/src/platform/)
list(TRANSFORM radsel_platform_headers APPEND .h)
install(FILES ${radsel_platform_headers} DESTINATION ${radsel_header_folder}/platform
    COMPONENT development)

# The packages for CMake and for pkg-config.
list(JOIN radsel_host_libraries ", " radsel_components)
string(PREPEND radsel_components
    "module, reference_host, host_defaults, host_default_dialogs, platform, radsel_c, ")
configure_file(${PROJECT_SOURCE_DIR}/cmake/radselConfig.cmake.in
    ${PROJECT_BINARY_DIR}/radselConfig.cmake @ONLY)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/radselConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/radselConfig.cmake
    ${PROJECT_BINARY_DIR}/radselConfigVersion.cmake
    DESTINATION ${radsel_package_folder} COMPONENT development)
install(EXPORT radselTargets NAMESPACE radsel:: DESTINATION ${radsel_package_folder}
    COMPONENT development)
foreach(package radsel radsel-reference-host)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/${package}.pc.in
        ${PROJECT_BINARY_DIR}/packaging/${package}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/packaging/${package}.pc
        DESTINATION ${radsel_pc_folder} COMPONENT development)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/examples/bind_radsel.cpp
    DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT development)

# The reference host and the workbench look for these from the folder that they lie in.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/data/ DESTINATION ${radsel_data_folder} COMPONENT data
    PATTERN .gitattributes EXCLUDE)
install(DIRECTORY ${PROJECT_BINARY_DIR}/help DESTINATION ${radsel_data_folder} COMPONENT data
    FILES_MATCHING PATTERN *.pdf)

install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT documentation
    FILES_MATCHING PATTERN *.md PATTERN *.png
    PATTERN help EXCLUDE PATTERN installed.md EXCLUDE PATTERN windows.md EXCLUDE)
install(FILES ${PROJECT_SOURCE_DIR}/docs/installed.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
    RENAME README.md COMPONENT documentation)
install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT documentation)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT licences)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/LICENSES DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT licences)

# A program over the reference host, with its manual page.
function(radsel_install_program target component)
    radsel_way(to_lib ${CMAKE_INSTALL_BINDIR} ${CMAKE_INSTALL_LIBDIR})
    radsel_way(to_host ${CMAKE_INSTALL_BINDIR} ${radsel_host_folder})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH $ORIGIN/${to_lib}:$ORIGIN/${to_host})
    install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component})
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/man/${target}.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${component})
endfunction()

if(TARGET radsel_check)
    radsel_install_program(radsel_check tools)
endif()
radsel_install_program(radsel_batch tools)
if(RADSEL_WORKBENCH)
    radsel_install_program(radsel_workbench workbench)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/radsel_workbench.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT workbench)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/radsel_workbench.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT workbench)
endif()
