# How the work of each operation grows with its input, counted in instructions by callgrind, which
# cannot run what the sanitizers have made, nor programs for Windows. It is counted in what is
# optimised as what is delivered is.
if(RADSEL_SANITIZE OR WIN32 OR CMAKE_BUILD_TYPE STREQUAL "Debug")
    return()
endif()

find_program(RADSEL_VALGRIND valgrind REQUIRED)
find_path(RADSEL_VALGRIND_INCLUDE valgrind/valgrind.h REQUIRED)

radsel_test_sources(growth_sources growth/*.cpp)
add_executable(radsel_growth_tests ${growth_sources})
target_include_directories(radsel_growth_tests SYSTEM PRIVATE ${RADSEL_VALGRIND_INCLUDE})
target_link_libraries(radsel_growth_tests PRIVATE radsel_dialog_support radsel_host_dialog_support workbench_program radsel_c
    reference_host_check radsel_sample_buildings radsel_sample_catalogues radsel_sample_valves
    radsel_warnings)
radsel_precompile(radsel_growth_tests toolkit_tests)

# In two processes, which run side by side: more would each spend a second or two on making the
# toolkit countable.
foreach(parts Window-Dialogs-Lists Plan-Readers)
    string(REPLACE - "/*:" filter ${parts})
    string(TOLOWER growth_${parts} name)
    set(log ${CMAKE_CURRENT_BINARY_DIR}/${name}.log)
    add_test(NAME ${name} COMMAND ${RADSEL_VALGRIND} -q --tool=callgrind
        --callgrind-out-file=/dev/null --log-file=${log} $<TARGET_FILE:radsel_growth_tests>
        --gtest_filter=${filter}/*)
    # They take longest, so that they begin first.
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 COST 50 ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;RADSEL_GROWTH_LOG=${log}")
endforeach()
