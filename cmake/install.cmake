# What `cmake --install` lays out: the module and the reference host as a runtime, and what the
# programmer of another host needs as a development component. Libraries lie in `lib` whatever the
# system prefers, since the host looks for `share/radsel` beside that folder. The reference host's
# have a folder of their own, which no loader searches, so that they serve those only who name them.

include(CMakePackageConfigHelpers)

set(radsel_host_libraries HostPrefs HostCatalog HostFittings HostBase HostPrompts)
set(radsel_host_folder lib/radsel/reference_host)
set(radsel_package_folder lib/cmake/radsel)

set_target_properties(radsel ${radsel_host_libraries} PROPERTIES
    VERSION ${PROJECT_VERSION}
    # Below 1.0 every minor version may change the records.
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set_target_properties(${radsel_host_libraries} PROPERTIES INSTALL_RPATH $ORIGIN)
set_target_properties(radsel_workbench radsel_check PROPERTIES
    INSTALL_RPATH $ORIGIN/../lib:$ORIGIN/../${radsel_host_folder})
set_target_properties(radsel PROPERTIES EXPORT_NAME module)

# The records that cross the boundary are made of arrays, archives and exceptions of platform/.
set_target_properties(radsel_platform PROPERTIES EXPORT_NAME platform)
target_compile_features(radsel_platform INTERFACE cxx_std_20)
target_link_libraries(radsel INTERFACE radsel_platform)

# A static library keeps its symbols when it is installed, and with them the names of its sources.
target_compile_options(radsel_platform PRIVATE -ffile-prefix-map=${PROJECT_BINARY_DIR}=build
    -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)

install(TARGETS radsel EXPORT radselTargets
    LIBRARY DESTINATION lib COMPONENT runtime NAMELINK_COMPONENT development
    INCLUDES DESTINATION include/radsel)
install(TARGETS ${radsel_host_libraries} EXPORT radselTargets
    LIBRARY DESTINATION ${radsel_host_folder}
        COMPONENT runtime NAMELINK_COMPONENT development
    INCLUDES DESTINATION include/radsel)
install(TARGETS reference_host EXPORT radselTargets)
install(TARGETS radsel_platform EXPORT radselTargets
    ARCHIVE DESTINATION lib COMPONENT development
    INCLUDES DESTINATION include/radsel)
install(TARGETS radsel_workbench radsel_check RUNTIME DESTINATION bin COMPONENT runtime)

function(radsel_install_headers folder)
    list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/src/${folder}/)
    list(TRANSFORM ARGN APPEND .h)
    install(FILES ${ARGN} DESTINATION include/radsel/${folder} COMPONENT development)
endfunction()

radsel_install_headers(frame conn_values entry_points handover hkauswahl_uebergabe lumo_error
    vdi6030_start ventil_kv)
radsel_install_headers(host api drawer drawing_records host_base host_catalog host_fittings
    host_diagnosis host_identity host_prefs host_prompts image_loader)
radsel_install_headers(platform archive array bitmap byte_stream color exception export object text)

write_basic_package_version_file(${PROJECT_BINARY_DIR}/radselConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_SOURCE_DIR}/cmake/radselConfig.cmake
    ${PROJECT_BINARY_DIR}/radselConfigVersion.cmake
    DESTINATION ${radsel_package_folder} COMPONENT development)
install(EXPORT radselTargets NAMESPACE radsel:: DESTINATION ${radsel_package_folder}
    COMPONENT development)

install(DIRECTORY ${PROJECT_SOURCE_DIR}/data/ DESTINATION share/radsel COMPONENT runtime
    PATTERN .gitattributes EXCLUDE)
install(DIRECTORY ${PROJECT_BINARY_DIR}/help DESTINATION share/radsel COMPONENT runtime
    FILES_MATCHING PATTERN *.pdf)
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    DESTINATION share/doc/radsel COMPONENT runtime)
foreach(part runtime development)
    set(package radsel)
    if(part STREQUAL development)
        set(package radsel-dev)
    endif()
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE.md DESTINATION share/doc/${package}
        RENAME copyright COMPONENT ${part})
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/LICENSES DESTINATION share/doc/${package}
        COMPONENT ${part})
endforeach()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION share/doc/radsel COMPONENT runtime
    FILES_MATCHING PATTERN *.md PATTERN help EXCLUDE)
install(FILES ${PROJECT_SOURCE_DIR}/examples/bind_radsel.cpp
    DESTINATION share/doc/radsel/examples COMPONENT development)
