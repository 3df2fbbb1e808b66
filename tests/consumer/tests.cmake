set(consumer_dir ${CMAKE_CURRENT_LIST_DIR})

add_executable(radsel_bind_example ${PROJECT_SOURCE_DIR}/examples/bind_radsel.cpp)
target_link_libraries(radsel_bind_example PRIVATE radsel reference_host radsel_warnings)
add_test(NAME example COMMAND ${consumer_dir}/example_test.sh
    $<TARGET_FILE:radsel_bind_example> ${PROJECT_SOURCE_DIR}/data/catalogues)
add_test(NAME host_guide COMMAND ${consumer_dir}/guide_test.sh
    ${PROJECT_SOURCE_DIR})

# Another tree's program needs what this one is instrumented with. How folders are named in what is
# built, how numbers are rounded and what debuggers and compilers are told concerns this one alone.
get_directory_property(tree_options DIRECTORY ${PROJECT_SOURCE_DIR} COMPILE_OPTIONS)
list(FILTER tree_options EXCLUDE REGEX "prefix-map|fp-contract|debug-default|ggc")
list(JOIN tree_options " " tree_options)

# Instrumented code names its sources, and so do asserts: then texts alone are scanned for them.
set(scan binary)
if(tree_options)
    set(scan text)
endif()

add_test(NAME consumer COMMAND ${consumer_dir}/consumer_test.sh ${CMAKE_COMMAND}
    ${CMAKE_CPACK_COMMAND} ${PROJECT_BINARY_DIR} ${PROJECT_SOURCE_DIR} ${CMAKE_CXX_COMPILER}
    "${CMAKE_CXX_FLAGS} ${tree_options}" $<IF:$<CONFIG:Debug>,text,${scan}>
    ${CMAKE_C_COMPILER} "${tree_options}")
# It takes as long as a third of the others, so that it begins first.
set_tests_properties(consumer PROPERTIES TIMEOUT 400 COST 100
    ENVIRONMENT RADSEL_WERROR=$<$<BOOL:${RADSEL_WERROR}>:-Werror>)
