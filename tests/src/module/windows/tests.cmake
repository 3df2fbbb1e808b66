# What the module offers, by headers and by the list, without what it does.
set(exports ${PROJECT_SOURCE_DIR}/src/module/exports.def)
foreach(names marked listed)
    add_library(radsel_names_${names} SHARED ${CMAKE_CURRENT_LIST_DIR}/exported_names.cpp)
    target_compile_definitions(radsel_names_${names} PRIVATE RADSEL_INSIDE)
    target_link_libraries(radsel_names_${names} PRIVATE radsel_frame radsel_warnings)
    add_test(NAME exports_${names} COMMAND
        ${CMAKE_CURRENT_LIST_DIR}/exported_names_test.sh ${CMAKE_OBJDUMP}
        $<TARGET_FILE:radsel_names_${names}> ${exports})
endforeach()
target_sources(radsel_names_listed PRIVATE ${exports})
