# What the programmer of another host builds his own from: the defaults, their dialogs and the
# skeleton to copy. The dialogs need the toolkit and so are a component that is asked for.

set_target_properties(radsel_host_defaults PROPERTIES EXPORT_NAME host_defaults_archive)
set_target_properties(radsel_host_default_dialogs PROPERTIES
    EXPORT_NAME host_default_dialogs_archive)

install(TARGETS radsel_host_defaults host_defaults EXPORT radselTargets
    ARCHIVE DESTINATION lib COMPONENT development INCLUDES DESTINATION include/radsel)
install(TARGETS radsel_host_default_dialogs host_default_dialogs EXPORT radselDialogTargets
    ARCHIVE DESTINATION lib COMPONENT development INCLUDES DESTINATION include/radsel)
install(EXPORT radselDialogTargets NAMESPACE radsel:: DESTINATION ${radsel_package_folder}
    COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/host_defaults/answers.h
    DESTINATION include/radsel/host_defaults COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/host DESTINATION share/doc/radsel/examples
    COMPONENT development)
