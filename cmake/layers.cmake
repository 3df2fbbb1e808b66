# One folder, one target, one line. A room's line says which rooms it may use; nothing else does.
#
#   radsel_layer(src/valve/dialog USES src/dialogs src/valve)
#
# makes the target radsel_valve_dialog of all sources of that folder. A room that uses another may
# include it and all that the other may include. A folder without sources makes an interface target.
# Without RADSEL_TOOLKIT a room that knows the toolkit has no target, nor has one that uses such a room.
#
#   TARGET name     another name than the folder's
#   SHARED          a shared library, PROGRAM a program
#   ARCHIVE         a static library that is installed: its objects are for every linker, and for the
#                   optimiser of none
#   PARTS sub...    subfolders that belong to the room
#   TOOLKIT how     `inside`: only sources and parts know the toolkit, the room's headers do not;
#                   `open`: the room's headers may show it. Without it the room is free of it.
#   MOC             some of its classes are the toolkit's objects, for which the toolkit writes code
#   ONLY_WITH option  without that option the room has no target either
#   OFFERS room...  rooms whose functions a shared library passes on as its own
#   LINKS lib...    libraries that are bound in without being included as a room
#
# radsel_write_layers() writes the table, which the test of the layers reads.

set_property(GLOBAL PROPERTY RADSEL_LAYERS "")

# src/valve/dialog becomes radsel_valve_dialog, workbench/plan becomes workbench_plan.
function(radsel_target_of folder variable)
    get_property(target GLOBAL PROPERTY RADSEL_TARGET_${folder})
    if(NOT target)
        string(REGEX REPLACE "^src/" "radsel/" target ${folder})
        string(REPLACE "/" "_" target ${target})
    endif()
    set(${variable} ${target} PARENT_SCOPE)
endfunction()

function(radsel_make_target target folder kind)
    set(globs ${ARGN})
    list(TRANSFORM globs PREPEND ${PROJECT_SOURCE_DIR}/${folder}/)
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp ${globs})
    if(NOT sources)
        add_library(${target} INTERFACE)
    elseif(kind STREQUAL PROGRAM)
        add_executable(${target} ${sources})
    else()
        add_library(${target} ${kind} ${sources})
    endif()
endfunction()

function(radsel_is_left_out variable toolkit only_with)
    set(left_out FALSE)
    if((only_with AND NOT ${only_with}) OR NOT (RADSEL_TOOLKIT OR toolkit STREQUAL none))
        set(left_out TRUE)
    endif()
    if(NOT RADSEL_TOOLKIT OR NOT RADSEL_WORKBENCH)
        foreach(room ${ARGN})
            radsel_target_of(${room} target)
            if(NOT TARGET ${target})
                set(left_out TRUE)
            endif()
        endforeach()
    endif()
    set(${variable} ${left_out} PARENT_SCOPE)
endfunction()

function(radsel_layer folder)
    cmake_parse_arguments(room "SHARED;PROGRAM;ARCHIVE;MOC" "TARGET;TOOLKIT;ONLY_WITH" "PARTS;USES;OFFERS;LINKS" ${ARGN})
    set(kind STATIC)
    if(room_SHARED)
        set(kind SHARED)
    elseif(room_PROGRAM)
        set(kind PROGRAM)
    endif()
    if(NOT room_TOOLKIT)
        set(room_TOOLKIT none)
    endif()

    if(room_TARGET)
        set_property(GLOBAL PROPERTY RADSEL_TARGET_${folder} ${room_TARGET})
    endif()
    list(JOIN room_USES " " uses)
    list(JOIN room_OFFERS " " offers)
    string(STRIP "${folder} toolkit=${room_TOOLKIT} ${uses} ${offers}" line)
    set_property(GLOBAL APPEND PROPERTY RADSEL_LAYERS "${line}")

    radsel_target_of(${folder} target)
    radsel_is_left_out(left_out ${room_TOOLKIT} "${room_ONLY_WITH}" ${room_USES} ${room_OFFERS})
    if(left_out)
        return()
    endif()
    set(parts ${room_PARTS})
    list(TRANSFORM parts APPEND /*.cpp)
    radsel_make_target(${target} ${folder} ${kind} ${parts})

    # Rooms of the module are included by their name in it, those of the other houses by their house.
    set(roots $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>)
    if(NOT folder MATCHES "^src/")
        list(APPEND roots $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
    endif()

    # A static library and an interface pass on what they use; a shared library and a program keep it.
    set(reach PUBLIC)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL INTERFACE_LIBRARY)
        set(reach INTERFACE)
        set(include_reach INTERFACE)
    else()
        set(include_reach PUBLIC)
        if(NOT type STREQUAL STATIC_LIBRARY)
            set(reach PRIVATE)
        endif()
        target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:radsel_warnings>)
    endif()
    target_include_directories(${target} ${include_reach} ${roots})

    foreach(used ${room_USES})
        radsel_target_of(${used} used_target)
        target_link_libraries(${target} ${reach} ${used_target})
    endforeach()
    foreach(offered ${room_OFFERS})
        radsel_target_of(${offered} offered_target)
        target_link_libraries(${target} PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,${offered_target}>)
    endforeach()
    if(WIN32 AND room_OFFERS)
        # The room's own functions take the place of those that it passes on.
        target_link_options(${target} PRIVATE LINKER:--allow-multiple-definition)
    endif()
    target_link_libraries(${target} ${reach} ${room_LINKS})
    if(room_TOOLKIT STREQUAL inside)
        target_link_libraries(${target} PRIVATE Qt6::Widgets)
    elseif(room_TOOLKIT STREQUAL open)
        target_link_libraries(${target} ${reach} Qt6::Widgets)
    endif()
    if(room_MOC)
        set_target_properties(${target} PROPERTIES AUTOMOC ON)
    endif()
    if(room_ARCHIVE)
        target_compile_options(${target} PRIVATE -fno-lto)
    endif()
    # A program's few sources are compiled quickly; its options differ from those of other programs.
    if(NOT room_PROGRAM)
        if(room_TOOLKIT STREQUAL none)
            radsel_precompile(${target} standard)
        else()
            radsel_precompile(${target} toolkit)
        endif()
    endif()
endfunction()

function(radsel_write_layers file)
    get_property(layers GLOBAL PROPERTY RADSEL_LAYERS)
    list(JOIN layers "\n" text)
    file(CONFIGURE OUTPUT ${file} CONTENT "${text}\n" @ONLY)
endfunction()
