# Makes a shared library export what is declared in a namespace, with the tables of its classes, and nothing else.
# Inline functions and templates are not among it; each library has its own. A function template must say that it is
# inline.
function(zilvo_export_namespace target namespace)
    string(REPLACE "::" ";" names ${namespace})
    set(mangled "")
    foreach(name ${names})
        string(LENGTH ${name} length)
        string(APPEND mangled ${length}${name})
    endforeach()
    set(exports ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
    configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/exports.map.in ${exports} @ONLY)
    target_link_options(${target} PRIVATE -Wl,--version-script=${exports})
    set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET default VISIBILITY_INLINES_HIDDEN ON
                                               LINK_DEPENDS ${exports})
endfunction()
