# The Debian packages `radsel` and `radsel-dev`: cpack in the build folder makes both.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME radsel)
set(CPACK_PACKAGE_VENDOR "radsel developers")
set(CPACK_PACKAGE_CONTACT "radsel developers <radsel@example.org>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/package_locale.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME radsel)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION science)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
# Help pages open in the viewer that the user has for them; file dialogs speak Italian.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "qt6-translations-l10n, xdg-utils")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "selection of radiators and valves for CAD programs
The module that a CAD program loads to choose radiators and radiator valves from
makers' catalogues, the libraries of a reference host, and the workbench, which
chooses the radiators of a whole building. With sample catalogues and help pages.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME radsel-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "development files for binding radsel
Headers, link libraries and the CMake package for a CAD program that binds the
module, with an example.")

include(CPack)
