# A library with the typed classes of a component, made from the component when it is built: what the component
# publishes, <INCLUDE_FOLDER>/<class>.h for each class, in that namespace. COMPONENT is a target or a file; HEADERS, if
# there are any, have the comments.
#
#     zilvo_add_typed_widgets(TARGET COMPONENT INCLUDE_FOLDER NAMESPACE [HEADERS FILE...])
include(${CMAKE_CURRENT_LIST_DIR}/../cmake/Exports.cmake)
function(zilvo_add_typed_widgets target component include_folder namespace)
    cmake_parse_arguments(PARSE_ARGV 4 with "" "" HEADERS)
    set(file ${component})
    if(TARGET ${component})
        set(file $<TARGET_FILE:${component}>)
    endif()
    set(tools ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../tools)
    set(output ${CMAKE_CURRENT_BINARY_DIR}/${target})
    file(MAKE_DIRECTORY ${output}/${include_folder})
    list(TRANSFORM with_HEADERS REPLACE "^([^/])" "${CMAKE_CURRENT_SOURCE_DIR}/\\1")

    set(made Enumerations.h Controls.h Controls.cpp)
    list(TRANSFORM made PREPEND ${output}/${include_folder}/)
    # As byproducts, so that what did not change is not compiled again.
    add_custom_command(OUTPUT ${output}/made BYPRODUCTS ${made} VERBATIM
        COMMAND Zilvo::zilvo --component ${file} run ${tools}/typed-widgets.lua ${output} ${include_folder} ${namespace}
                ${with_HEADERS}
        COMMAND ${CMAKE_COMMAND} -E touch ${output}/made
        DEPENDS Zilvo::zilvo ${component} ${tools}/typed-widgets.lua ${tools}/headers.lua ${with_HEADERS}
        COMMENT "Writing the typed classes of ${component}")
    add_custom_target(${target}-sources DEPENDS ${output}/made)
    add_library(${target} SHARED ${made})
    add_dependencies(${target} ${target}-sources)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    zilvo_export_namespace(${target} ${namespace})
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${output}>)
    target_link_libraries(${target} PUBLIC Zilvo::Qt)
endfunction()
