# A component: a module NAME.Ocx that exports its entry points and nothing else. Exports.cpp defines them and asks for
# componentModule(), which the sources define; with OWN_ENTRY_POINTS the sources define the entry points themselves.
#
#     zilvo_add_component(TARGET NAME [OWN_ENTRY_POINTS] SOURCE...)
#
# Once linked, the component is loaded and asked for its resources, which go into a section of the file, so that hosts
# can read them without running any of it.
function(zilvo_add_component target name)
    cmake_parse_arguments(PARSE_ARGV 2 with OWN_ENTRY_POINTS "" "")
    set(here ${CMAKE_CURRENT_FUNCTION_LIST_DIR})
    add_library(${target} MODULE ${with_UNPARSED_ARGUMENTS})
    if(NOT with_OWN_ENTRY_POINTS)
        target_sources(${target} PRIVATE ${here}/Exports.cpp)
    endif()
    target_link_libraries(${target} PRIVATE Zilvo::Platform)
    target_link_options(${target} PRIVATE -Wl,--version-script=${here}/exports.map)
    set_target_properties(${target} PROPERTIES PREFIX "" OUTPUT_NAME ${name} SUFFIX ".Ocx" CXX_VISIBILITY_PRESET default
                                               LINK_DEPENDS ${here}/exports.map)
    set(section ${CMAKE_CURRENT_BINARY_DIR}/${name}.section)
    add_dependencies(${target} Zilvo::zilvo-seal)
    add_custom_command(TARGET ${target} POST_BUILD VERBATIM
        COMMAND Zilvo::zilvo-seal $<TARGET_FILE:${target}> ${section}
        COMMAND ${CMAKE_OBJCOPY} --add-section .zilvo=${section} --set-section-flags .zilvo=noload,readonly
                $<TARGET_FILE:${target}>)
endfunction()
