# What the programmer of another host builds his own from: the defaults, their dialogs and the
# skeleton to copy. The dialogs need the toolkit and so are a component that is asked for.

set_target_properties(radsel_host_defaults PROPERTIES EXPORT_NAME host_defaults_archive)
set_target_properties(radsel_host_default_dialogs PROPERTIES
    EXPORT_NAME host_default_dialogs_archive)

install(TARGETS radsel_host_defaults host_defaults EXPORT radselTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    INCLUDES DESTINATION ${radsel_header_folder})
install(TARGETS radsel_host_default_dialogs host_default_dialogs EXPORT radselDialogTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    INCLUDES DESTINATION ${radsel_header_folder})
install(EXPORT radselDialogTargets NAMESPACE radsel:: DESTINATION ${radsel_package_folder}
    COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/host_defaults/answers.h
    DESTINATION ${radsel_header_folder}/host_defaults COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/host DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples
    COMPONENT development)
