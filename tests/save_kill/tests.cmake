add_executable(radsel_save_kill ${CMAKE_CURRENT_LIST_DIR}/save_kill.cpp)
target_link_libraries(radsel_save_kill PRIVATE radsel_sample_buildings radsel_platform
    radsel_warnings)
add_test(NAME save_kill COMMAND ${CMAKE_CURRENT_LIST_DIR}/save_kill_test.sh
    $<TARGET_FILE:radsel_save_kill>)
set_tests_properties(save_kill PROPERTIES TIMEOUT 120)
