# The C interface, used from C as its header says.
enable_language(C)
set(c_interface_dir ${CMAKE_CURRENT_LIST_DIR})

function(radsel_c_program target)
    set_target_properties(${target} PROPERTIES
        C_STANDARD 99 C_STANDARD_REQUIRED ON C_EXTENSIONS OFF LINKER_LANGUAGE CXX)
    target_compile_options(${target}
        PRIVATE $<$<COMPILE_LANGUAGE:C>:-Wall -Wextra -Wpedantic -Wconversion -Wshadow>
        $<$<AND:$<COMPILE_LANGUAGE:C>,$<BOOL:${RADSEL_WERROR}>>:-Werror>)
    target_link_libraries(${target} PRIVATE radsel_c)
endfunction()

add_executable(radsel_c_interface_test ${c_interface_dir}/c_interface_test.c
    ${c_interface_dir}/answer_dialogs.cpp)
radsel_c_program(radsel_c_interface_test)
target_link_libraries(radsel_c_interface_test PRIVATE Qt6::Widgets)
add_test(NAME c_interface COMMAND ${c_interface_dir}/c_interface_test.sh
    $<TARGET_FILE:radsel_c_interface_test> ${PROJECT_SOURCE_DIR}/data)
set_tests_properties(c_interface PROPERTIES TIMEOUT 120 ENVIRONMENT QT_QPA_PLATFORM=offscreen
    ENVIRONMENT_MODIFICATION ${toolkit_leaks})

add_executable(radsel_owner_window ${c_interface_dir}/owner_window.c)
radsel_c_program(radsel_owner_window)
add_test(NAME c_interface_owner COMMAND ${c_interface_dir}/owner_window_test.sh
    $<TARGET_FILE:radsel_owner_window> ${PROJECT_SOURCE_DIR}/data ${CMAKE_CURRENT_BINARY_DIR})
set_tests_properties(c_interface_owner PROPERTIES TIMEOUT 120
    ENVIRONMENT_MODIFICATION ${toolkit_leaks})

add_executable(radsel_c_host ${PROJECT_SOURCE_DIR}/examples/c_host/c_host.c)
radsel_c_program(radsel_c_host)

add_test(NAME c_interface_symbols COMMAND ${c_interface_dir}/symbols_test.sh
    $<TARGET_FILE:radsel_c> ${PROJECT_SOURCE_DIR}/c_interface/radsel_c.h)
