# What tells a journey where the controls of the program stand: a plugin of the toolkit, for tests only.
set(finder_folder ${CMAKE_CURRENT_BINARY_DIR}/journeys)
add_library(radsel_finder MODULE ${CMAKE_CURRENT_LIST_DIR}/finder/finder.cpp
    ${CMAKE_CURRENT_LIST_DIR}/finder/finder_plugin.cpp)
target_include_directories(radsel_finder PRIVATE ${PROJECT_SOURCE_DIR})
target_link_libraries(radsel_finder PRIVATE Qt6::Widgets radsel_warnings)
set_target_properties(radsel_finder PROPERTIES AUTOMOC ON
    LIBRARY_OUTPUT_DIRECTORY ${finder_folder}/generic)

foreach(journey enter_key valve_dialog connection_dialog radiator_dialog small_screen workbench)
    add_test(NAME journey_${journey} COMMAND ${CMAKE_CURRENT_LIST_DIR}/${journey}_journey.sh
        $<TARGET_FILE:radsel_workbench> ${PROJECT_SOURCE_DIR}/data ${finder_folder})
    set_tests_properties(journey_${journey} PROPERTIES TIMEOUT 180 COST 10 ENVIRONMENT
        LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/support/toolkit_leaks.txt)
endforeach()
