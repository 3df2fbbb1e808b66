# The Python package over the library and the workbench of this tree, its example, and its types.

set(python_environment
    PYTHONPATH=${PROJECT_SOURCE_DIR}/python
    PYTHONDONTWRITEBYTECODE=1
    RADSEL_LIBRARY=$<TARGET_FILE:radsel_c>
    RADSEL_WORKBENCH=$<TARGET_FILE:radsel_workbench>
    RADSEL_HKBLOCKDIR=${PROJECT_SOURCE_DIR}/data/drawing/heizkoerper.dxf
    RADSEL_VEBLOCKDIR=${PROJECT_SOURCE_DIR}/data/drawing/ventile.dxf
    TGA_DATA_SINGLE=${PROJECT_SOURCE_DIR}/data/root
    XDG_CONFIG_HOME=${CMAKE_CURRENT_BINARY_DIR}/python_home)

if(RADSEL_SANITIZE)
    # An interpreter that is not instrumented needs what instrumented libraries stand on ahead of
    # everything else, and leaks at its end by design.
    set(ahead)
    foreach(library libasan.so libstdc++.so)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
            OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        list(APPEND ahead ${file})
    endforeach()
    list(JOIN ahead : ahead)
    list(APPEND python_environment LD_PRELOAD=${ahead} ASAN_OPTIONS=detect_leaks=0)
endif()

# As a user's own checker reads the package: what it exports, and a script over it.
add_test(NAME python_types COMMAND /usr/bin/mypy --strict --cache-dir=/dev/null
    --ignore-missing-imports ${PROJECT_SOURCE_DIR}/python/radsel
    ${PROJECT_SOURCE_DIR}/examples/python)
set_tests_properties(python_types PROPERTIES ENVIRONMENT MYPYPATH=${PROJECT_SOURCE_DIR}/python)

foreach(name catalogues buildings example)
    add_test(NAME python_${name} COMMAND
        /usr/bin/python3 ${CMAKE_CURRENT_LIST_DIR}/${name}_test.py)
    set_tests_properties(python_${name} PROPERTIES ENVIRONMENT "${python_environment}")
endforeach()
