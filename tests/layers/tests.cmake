# The plan of the houses: who may include whom, what each room needs to be linked, and that logic
# needs no toolkit. The tests of the includes themselves are part of the logic tests.

add_test(NAME toolkit_free COMMAND ${CMAKE_CURRENT_LIST_DIR}/toolkit_free_test.sh
    $<TARGET_FILE:radsel_logic_tests>)
