# find_package(radsel) gives radsel::module, the module without any host; radsel::reference_host,
# the five libraries of the host that comes with it, also one by one as radsel::HostPrefs,
# radsel::HostCatalog, radsel::HostFittings, radsel::HostBase and radsel::HostPrompts;
# radsel::host_defaults, what is the same for every host; and radsel::platform, what the records are
# made of. With the component host_default_dialogs there is radsel::host_default_dialogs too, the
# defaults with their dialogs, for which Qt is needed.
include(${CMAKE_CURRENT_LIST_DIR}/radselTargets.cmake)
if("host_default_dialogs" IN_LIST radsel_FIND_COMPONENTS)
    include(CMakeFindDependencyMacro)
    find_dependency(Qt6 COMPONENTS Widgets)
    include(${CMAKE_CURRENT_LIST_DIR}/radselDialogTargets.cmake)
endif()
