# What is installed beside a program: its manual page, made of its own help and the documentation, and what bash offers
# for its command line; beside the drill also what a desktop knows it by.
find_program(ZILVO_GZIP gzip REQUIRED)

# The section HEADING of the documentation is about the program.
function(zilvo_install_manual target part heading)
    file(GLOB documents CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/docs/*.md)
    set(page ${PROJECT_BINARY_DIR}/man/${target}.1)
    set(script ${PROJECT_SOURCE_DIR}/tools/man-page.lua)
    add_custom_command(OUTPUT ${page}.gz VERBATIM
        COMMAND zilvo --component $<TARGET_FILE:ZilvoButtons-445> run ${script} $<TARGET_FILE:${target}> ${PROJECT_VERSION} ${heading} ${documents} > ${page}
        COMMAND ${ZILVO_GZIP} -9nf ${page}
        DEPENDS ${target} zilvo ${script} ${documents})
    add_custom_target(${target}-manual ALL DEPENDS ${page}.gz)
    install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${part})
endfunction()
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/man)

function(zilvo_install_completion target part)
    get_target_property(folder ${target} SOURCE_DIR)
    install(FILES ${folder}/completion.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
            RENAME ${target} COMPONENT ${part})
endfunction()

if(TARGET zilvo)
    zilvo_install_manual(zilvo Tools "The console host")
    zilvo_install_completion(zilvo Tools)
    zilvo_install_manual(zilvo-seal Development "The component file")
endif()

if(TARGET zilvo-drill)
    set_target_properties(zilvo-drill PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
    install(TARGETS zilvo-drill RUNTIME COMPONENT Drill)
    zilvo_install_manual(zilvo-drill Drill "The count drill")
    zilvo_install_completion(zilvo-drill Drill)
    get_target_property(folder zilvo-drill SOURCE_DIR)
    install(FILES ${folder}/zilvo-drill.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT Drill)
    install(FILES ${folder}/zilvo-drill.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
            COMPONENT Drill)
    install(FILES ${folder}/local.zilvo.drill.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
            COMPONENT Drill)
endif()
