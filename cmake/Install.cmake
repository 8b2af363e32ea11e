# What is installed, in parts that can become a package each: Runtime, the platform and the component; Development,
# what C++ hosts and components are built with; Tools, the console host; Qt, the widgets; QtDevelopment, what hosts with
# widgets are built with; Drill, the count drill. No file of it says where it lies, so that the whole can be moved.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Zilvo)
function(zilvo_install_targets name part)
    install(EXPORT Zilvo${name}Targets NAMESPACE Zilvo:: DESTINATION ${package_folder} COMPONENT ${part})
endfunction()

# Programs find the libraries from where they lie, libraries those beside them, and the component, which the platform
# looks for in this folder, the ones above.
file(RELATIVE_PATH libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set_target_properties(zilvo-seal PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
set_target_properties(ZilvoButtons-445 PROPERTIES INSTALL_RPATH "$ORIGIN/..")
install(TARGETS ZilvoButtons-445 LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/zilvo COMPONENT Runtime)

set_target_properties(zilvo-platform PROPERTIES EXPORT_NAME Platform)
set_target_properties(ZilvoButtons PROPERTIES EXPORT_NAME Buttons)
install(TARGETS zilvo-platform EXPORT ZilvoPlatformTargets
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
    FILE_SET HEADERS COMPONENT Development)
install(TARGETS zilvo-seal EXPORT ZilvoPlatformTargets RUNTIME COMPONENT Development)
install(TARGETS ZilvoButtons EXPORT ZilvoButtonsTargets
    ARCHIVE COMPONENT Development
    FILE_SET HEADERS COMPONENT Development)
zilvo_install_targets(Platform Development)
zilvo_install_targets(Buttons Development)

if(TARGET zilvo)
    set_target_properties(zilvo PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
    install(TARGETS zilvo EXPORT ZilvoToolsTargets RUNTIME COMPONENT Tools)
    zilvo_install_targets(Tools Tools)
endif()

if(TARGET zilvo-qt)
    set_target_properties(zilvo-qt PROPERTIES EXPORT_NAME Qt)
    set_target_properties(zilvo-qt-buttons PROPERTIES EXPORT_NAME QtButtons)
    set_target_properties(zilvo-qt zilvo-qt-buttons PROPERTIES INSTALL_RPATH "$ORIGIN")
    install(TARGETS zilvo-qt zilvo-qt-buttons EXPORT ZilvoQtTargets
        LIBRARY COMPONENT Qt NAMELINK_COMPONENT QtDevelopment
        FILE_SET HEADERS COMPONENT QtDevelopment)
    get_target_property(made zilvo-qt-buttons BINARY_DIR)
    install(DIRECTORY ${made}/zilvo-qt-buttons/zilvo-qt DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT QtDevelopment
        FILES_MATCHING PATTERN *.h)
    zilvo_install_targets(Qt QtDevelopment)
endif()

configure_package_config_file(cmake/ZilvoConfig.cmake.in ${PROJECT_BINARY_DIR}/ZilvoConfig.cmake
    INSTALL_DESTINATION ${package_folder} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZilvoConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZilvoConfig.cmake ${PROJECT_BINARY_DIR}/ZilvoConfigVersion.cmake
    DESTINATION ${package_folder} COMPONENT Development)

# The functions for other projects, with what they need, lie to each other as they do here.
function(zilvo_install_functions part)
    foreach(file ${ARGN})
        get_filename_component(folder ${file} DIRECTORY)
        install(FILES ${file} DESTINATION ${package_folder}/${folder} COMPONENT ${part})
    endforeach()
endfunction()
zilvo_install_functions(Development zilvo/library/Component.cmake zilvo/library/Exports.cpp zilvo/library/exports.map)
zilvo_install_functions(QtDevelopment zilvo-qt/TypedWidgets.cmake tools/typed-widgets.lua tools/headers.lua
                        cmake/Exports.cmake cmake/exports.map.in)

# The same for pkg-config; a host compiles as C++20.
file(RELATIVE_PATH prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" prefix ${prefix})
function(zilvo_install_pkg_config part name requires description libraries)
    configure_file(cmake/zilvo.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT ${part})
endfunction()
zilvo_install_pkg_config(Development zilvo-platform "" "Runs, hosts and finds controls of any component" -lzilvo-platform)
zilvo_install_pkg_config(Development zilvo-buttons zilvo-platform "The controls of ZilvoButtons, typed" -lZilvoButtons)
if(TARGET zilvo-qt)
    zilvo_install_pkg_config(QtDevelopment zilvo-qt "zilvo-platform Qt6Widgets >= 6.4" "The controls as widgets of Qt 6"
                       "-lzilvo-qt-buttons -lzilvo-qt")
endif()
