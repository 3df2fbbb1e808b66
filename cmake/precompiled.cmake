# Headers that nearly every source reads are compiled once for all targets whose sources read them;
# that takes more than a third off the time of a build. CMAKE_DISABLE_PRECOMPILE_HEADERS=ON builds
# without, to the same result.
#
#   radsel_precompile(TARGET HEADER)   HEADER is a file of cmake/precompiled without its suffix
#
# The first target with a header compiles it, the others take it from there. A program's sources are
# compiled as a library's are, so that both share one; those of a folder with RADSEL_PRECOMPILED_APART
# are compiled otherwise than those of others and cannot. Nor can what is optimised when it is linked
# and what is not.
set(RADSEL_PRECOMPILED_DIR ${CMAKE_CURRENT_LIST_DIR}/precompiled)

function(radsel_precompile target header)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL INTERFACE_LIBRARY)
        return()
    endif()
    if(type STREQUAL EXECUTABLE)
        set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
        target_compile_options(${target} PRIVATE ${CMAKE_CXX_COMPILE_OPTIONS_PIC})
    endif()
    set(shared_by all)
    if(CMAKE_INTERPROCEDURAL_OPTIMIZATION OR CMAKE_CXX_FLAGS MATCHES "-flto")
        get_target_property(options ${target} COMPILE_OPTIONS)
        if("-fno-lto" IN_LIST options)
            string(APPEND shared_by _compiled_whole)
        endif()
    endif()
    set(property RADSEL_PRECOMPILED_${header}_${shared_by}_${RADSEL_PRECOMPILED_APART})
    get_property(first GLOBAL PROPERTY ${property})
    if(first)
        target_precompile_headers(${target} REUSE_FROM ${first})
    else()
        target_precompile_headers(${target} PRIVATE ${RADSEL_PRECOMPILED_DIR}/${header}.h)
        set_property(GLOBAL PROPERTY ${property} ${target})
    endif()
endfunction()
