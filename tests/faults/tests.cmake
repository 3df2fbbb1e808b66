# Stores whose programs are killed beside others that write to them as well, and under which calls of the system
# fail one by one. The last of these takes longer than a test may: see tools/faults.sh.
add_executable(radsel_store_faults ${CMAKE_CURRENT_LIST_DIR}/store_faults.cpp
    ${CMAKE_CURRENT_LIST_DIR}/stores.cpp)
target_link_libraries(radsel_store_faults PRIVATE radsel_test_support radsel_sample_buildings
    reference_host_logic radsel_warnings ${CMAKE_DL_LIBS})
radsel_precompile(radsel_store_faults tests)
add_library(radsel_failing_calls MODULE ${CMAKE_CURRENT_LIST_DIR}/failing_calls.cpp)
target_link_libraries(radsel_failing_calls PRIVATE radsel_warnings ${CMAKE_DL_LIBS})
set_target_properties(radsel_failing_calls PROPERTIES PREFIX "" CXX_VISIBILITY_PRESET default)

foreach(store settings places lists start layer building)
    add_test(NAME store_kill_${store} COMMAND radsel_store_faults ${store} --kill 10)
    set_tests_properties(store_kill_${store} PROPERTIES TIMEOUT 120)
endforeach()
