# find_package(radsel) gives radsel::module, the module without any host; radsel::reference_host,
# the five libraries of the host that comes with it, also one by one as radsel::HostPrefs,
# radsel::HostCatalog, radsel::HostFittings, radsel::HostBase and radsel::HostPrompts; and
# radsel::platform, what the records are made of.
include(${CMAKE_CURRENT_LIST_DIR}/radselTargets.cmake)
