# Stores whose programs are killed beside others that write to them as well, and under which calls of the system
# fail one by one. tools/faults.sh does more of both, and lets the calls of a batch run fail.
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
    # The sanitizers' own library must be loaded before any other.
    if(NOT RADSEL_SANITIZE)
        add_test(NAME store_fail_${store} COMMAND radsel_store_faults ${store} --fail)
        set_tests_properties(store_fail_${store} PROPERTIES TIMEOUT 120 ENVIRONMENT
            LD_PRELOAD=$<TARGET_FILE:radsel_failing_calls>)
    endif()
endforeach()
