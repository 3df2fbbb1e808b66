# The Debian packages: `LC_ALL=C.UTF-8 cpack -G DEB` in the build folder makes them all. Configured
# with CMAKE_INSTALL_PREFIX=/usr the libraries lie in the folder of their architecture;
# tools/package.sh does so, as a distribution would build them.

set(revision 1)
set(whole_version ${PROJECT_VERSION}-${revision})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME radsel)
set(CPACK_PACKAGE_VENDOR "radsel developers")
set(CPACK_PACKAGE_CONTACT "radsel developers <radsel@radsel.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_DEBIAN_PACKAGE_RELEASE ${revision})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/package_locale.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/package_prepare.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/package_finish.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
# Where the libraries lie that one package has from another.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    ${PROJECT_BINARY_DIR}/src ${PROJECT_BINARY_DIR}/reference_host)

# What every package has in its own folder of documents. Only packages: elsewhere nobody looks there.
set(packaging ${PROJECT_BINARY_DIR}/packaging)
find_program(GZIP_PROGRAM gzip REQUIRED)
function(radsel_compress source target)
    file(MAKE_DIRECTORY ${packaging})
    execute_process(COMMAND ${GZIP_PROGRAM} -9nc INPUT_FILE ${source} OUTPUT_FILE ${target}
        COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
endfunction()
radsel_compress(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${packaging}/changelog.gz)
radsel_compress(${PROJECT_SOURCE_DIR}/packaging/changelog ${packaging}/changelog.Debian.gz)
file(STRINGS ${PROJECT_SOURCE_DIR}/packaging/changelog newest LIMIT_COUNT 1)
if(NOT newest MATCHES "^radsel \\(${whole_version}\\) ")
    message(FATAL_ERROR "packaging/changelog begins with \"${newest}\", not with ${whole_version}")
endif()

#   radsel_package(COMPONENT NAME SECTION section SUMMARY line TEXT lines
#       [ANY_ARCHITECTURE] [DEPENDS package...] [RECOMMENDS package...] [SUGGESTS package...])
#
# makes one package of a component. Packages of ours stand for their own version.
set(CPACK_COMPONENTS_ALL "")
function(radsel_package component name)
    cmake_parse_arguments(package "ANY_ARCHITECTURE" "SECTION;SUMMARY;TEXT"
        "DEPENDS;RECOMMENDS;SUGGESTS" ${ARGN})
    string(TOUPPER ${component} upper)
    set(settings PACKAGE_NAME ${name} PACKAGE_SECTION ${package_SECTION}
        DESCRIPTION "${package_SUMMARY}\n${package_TEXT}")
    if(package_ANY_ARCHITECTURE)
        list(APPEND settings PACKAGE_ARCHITECTURE all)
    endif()
    foreach(relation DEPENDS RECOMMENDS SUGGESTS)
        set(packages ${package_${relation}})
        list(TRANSFORM packages REPLACE "^(.*radsel.*)$" "\\1 (= ${whole_version})")
        list(JOIN packages ", " packages)
        if(packages)
            list(APPEND settings PACKAGE_${relation} "${packages}")
        endif()
    endforeach()
    while(settings)
        list(POP_FRONT settings key value)
        set(CPACK_DEBIAN_${upper}_${key} "${value}" PARENT_SCOPE)
    endwhile()
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)

    set(own ${CMAKE_INSTALL_DATADIR}/doc/${name})
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/copyright ${packaging}/changelog.Debian.gz
        ${packaging}/changelog.gz DESTINATION ${own} COMPONENT ${component} EXCLUDE_FROM_ALL)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/lintian-overrides RENAME ${name}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
        COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()

# By the rule of Debian a library's package carries the version of its name.
get_target_property(soversion radsel SOVERSION)
set(library libradsel${soversion})

radsel_package(runtime ${library} SECTION libs
    SUMMARY "selection of radiators and valves for CAD programs - module"
    TEXT
"The module that a CAD program loads to choose radiators and radiator valves
from makers' catalogues in the record format VDI 3805, silently or in
dialogs. What it needs to know of the program it asks the program's own
libraries.
.
This package contains the shared library.")
get_target_property(c_soversion radsel_c SOVERSION)
set(c_library libradsel-c${c_soversion})
radsel_package(c_interface ${c_library} SECTION libs
    RECOMMENDS radsel-data
    SUMMARY "selection of radiators and valves for CAD programs - C interface"
    TEXT
"The module radsel with a host inside, as plain C functions with plain records:
for programs and scripts in any language that calls C. It needs none of the
other packages.")
radsel_package(reference_host radsel-reference-host SECTION libs
    RECOMMENDS radsel-data xdg-utils qt6-translations-l10n
    SUMMARY "selection of radiators and valves for CAD programs - reference host"
    TEXT
"The module radsel asks the CAD program that loads it for folders, units,
settings and catalogues. These five libraries answer for programs that bring
none of their own: they read catalogues and settings from files.
.
They lie in a folder that no loader searches by itself.")
radsel_package(data radsel-data SECTION science ANY_ARCHITECTURE
    SUMMARY "selection of radiators and valves for CAD programs - sample data"
    TEXT
"Catalogues of radiators and valves of invented makers, connection types,
drawing blocks, a building, and the help pages of the dialogs of the module
radsel.")
radsel_package(development libradsel-dev SECTION libdevel
    DEPENDS ${library} ${c_library} radsel-reference-host
    RECOMMENDS radsel-doc SUGGESTS radsel-data qt6-base-dev
    SUMMARY "selection of radiators and valves for CAD programs - development files"
    TEXT
"Headers, link libraries, the defaults that a host is written over, and the
packages for CMake and pkg-config for programs that bind the module radsel or
its C interface, with examples.")
radsel_package(documentation radsel-doc SECTION doc ANY_ARCHITECTURE
    SUMMARY "selection of radiators and valves for CAD programs - documentation"
    TEXT
"The guides of the module radsel for programmers of CAD programs and for
designers, and the file formats.")
if(RADSEL_WORKBENCH)
    radsel_package(workbench radsel-workbench SECTION science
        DEPENDS ${library} radsel-reference-host radsel-data
        RECOMMENDS radsel-doc xdg-utils qt6-translations-l10n
        SUMMARY "radiators and valves of a building, chosen from makers' catalogues"
        TEXT
"A small drawing program around the module radsel: it shows a floor plan with
the heat demands of its rooms, chooses their radiators and valves from
makers' catalogues in the record format VDI 3805, and writes the schedule as
CSV, workbook, JSON and PDF and the plan as DXF. It does so without a window
as well.")
endif()

get_cmake_property(components COMPONENTS)
if(python IN_LIST components)
    radsel_package(python python3-radsel SECTION python ANY_ARCHITECTURE
        DEPENDS python3 ${c_library} RECOMMENDS radsel-data radsel-workbench
        SUMMARY "selection of radiators and valves from makers' catalogues - Python 3"
        TEXT
"Finds radiators and valves in makers' catalogues in the record format VDI
3805, lists makers, rows and outputs, and sizes the radiators of a building.")
endif()
if(tools IN_LIST components)
    radsel_package(tools radsel-tools SECTION science DEPENDS radsel-reference-host
        RECOMMENDS radsel-data
        SUMMARY "selection of radiators and valves for CAD programs - tools"
        TEXT
"radsel_check tells what is wrong in catalogues of radiators and valves and in
lists of connection types, as the module radsel would read them. radsel_batch
chooses the radiators and valves of a building and writes the schedule as CSV
and JSON, on machines without a screen or its libraries.")
endif()

include(CPack)

# Whatever is installed is in a package, but for what no package has.
list(REMOVE_ITEM components ${CPACK_COMPONENTS_ALL} licences)
if(components)
    message(FATAL_ERROR "No package has what is installed as: ${components}")
endif()
