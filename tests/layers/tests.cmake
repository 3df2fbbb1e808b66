# The plan of the houses: who may include whom, what each room needs to be linked, and that logic
# needs no toolkit. The tests of the includes themselves are part of the logic tests.

foreach(program radsel_logic_tests radsel_check radsel_batch)
    add_test(NAME toolkit_free_${program} COMMAND
        ${CMAKE_CURRENT_LIST_DIR}/toolkit_free_test.sh $<TARGET_FILE:${program}>)
endforeach()

# Without the toolkit there is no whole host to link with.
if(NOT RADSEL_TOOLKIT)
    return()
endif()

# Every room's library links whole with what its line names and the five libraries of a host, a room
# of the workbench with the module as well. The linker is the test: a function that is missing ends
# the build.
get_property(layers GLOBAL PROPERTY RADSEL_LAYERS)
foreach(layer ${layers})
    string(REGEX REPLACE " .*" "" folder "${layer}")
    radsel_target_of(${folder} room)
    get_target_property(type ${room} TYPE)
    if(type STREQUAL STATIC_LIBRARY)
        add_library(whole_${room} MODULE ${CMAKE_CURRENT_LIST_FILE})
        set_target_properties(whole_${room} PROPERTIES LINKER_LANGUAGE CXX)
        target_link_libraries(whole_${room} PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,${room}>
            reference_host)
        if(folder MATCHES "^workbench/")
            target_link_libraries(whole_${room} PRIVATE radsel)
        endif()
        target_link_options(whole_${room} PRIVATE -Wl,--no-undefined)
    endif()
endforeach()
