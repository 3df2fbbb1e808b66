# Where things lie once they are installed, below the prefix.

include(GNUInstallDirs)

set(radsel_host_folder ${CMAKE_INSTALL_LIBDIR}/radsel/reference_host)
set(radsel_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/radsel)
set(radsel_pc_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(radsel_header_folder ${CMAKE_INSTALL_INCLUDEDIR}/radsel)
set(radsel_data_folder ${CMAKE_INSTALL_DATADIR}/radsel)

# The way from one of them to another, by which the whole may be moved.
function(radsel_way variable from to)
    cmake_path(ABSOLUTE_PATH from BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE)
    cmake_path(ABSOLUTE_PATH to BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE)
    cmake_path(RELATIVE_PATH to BASE_DIRECTORY ${from})
    set(${variable} ${to} PARENT_SCOPE)
endfunction()

# For pkg-config.
radsel_way(radsel_pc_include ${radsel_pc_folder} ${radsel_header_folder})
radsel_way(radsel_pc_lib ${radsel_pc_folder} ${CMAKE_INSTALL_LIBDIR})
radsel_way(radsel_pc_host ${radsel_pc_folder} ${radsel_host_folder})
