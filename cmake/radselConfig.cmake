# find_package(radsel) gives radsel::radsel, the module; radsel::HostPrefs, radsel::HostCatalog,
# radsel::HostFittings, radsel::HostBase and radsel::HostPrompts, the libraries of the reference
# host, which come with radsel::radsel; and radsel::platform, what the records are made of.
include(${CMAKE_CURRENT_LIST_DIR}/radselTargets.cmake)
