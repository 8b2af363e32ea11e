# A Debian package of each part, by cpack: see tools/package. What is installed here, with ZILVO_PACKAGES, is for packages
# alone, as it says where files lie.
set(CPACK_PACKAGE_CONTACT "ZILVO maintainers <maintainers@example.com>" CACHE STRING "Who answers for the packages")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SOURCE zilvo)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Others' packages by the libraries that are used, our own by CPACK_COMPONENT_..._DEPENDS, the same version.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

# What every package has: which licence, and what has changed.
set(debian ${PROJECT_BINARY_DIR}/debian)
string(TIMESTAMP year "%Y" UTC)
configure_file(cmake/debian/copyright.in ${debian}/copyright @ONLY)
file(READ CHANGELOG.md changes)
string(FIND "${changes}" "\n## ${PROJECT_VERSION}" start)
string(SUBSTRING "${changes}" ${start} -1 changes)
string(REGEX MATCH "\n- .*" changes "${changes}")
string(REGEX REPLACE "\n+## .*" "" changes "${changes}")
string(REGEX REPLACE "\n- " "\n  * " changes "${changes}")
string(REGEX REPLACE "\n  ([^*])" "\n    \\1" changes "${changes}")
string(REPLACE "`" "" changes "${changes}")
file(WRITE ${debian}/changes "${changes}\n")
execute_process(COMMAND fmt -tw 78 ${debian}/changes OUTPUT_VARIABLE changes
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(cmake/debian/changelog.in ${debian}/changelog @ONLY)
execute_process(COMMAND ${ZILVO_GZIP} -9nf ${debian}/changelog COMMAND_ERROR_IS_FATAL ANY)

# zilvo_package(PART NAME SECTION SUMMARY DESCRIPTION [DEPENDS PART...] [EXTERNAL PACKAGES] [RECOMMENDS PACKAGES]): depends on
# the packages of other parts and, beside those of the libraries that it uses, on those of others.
function(zilvo_package part name section summary description)
    cmake_parse_arguments(PARSE_ARGV 5 with "" "EXTERNAL;RECOMMENDS" "DEPENDS")
    string(TOUPPER ${part} key)
    set(CPACK_COMPONENT_${key}_DEPENDS ${with_DEPENDS} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS "${with_EXTERNAL}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_RECOMMENDS "${with_RECOMMENDS}" PARENT_SCOPE)
    install(FILES ${debian}/copyright ${debian}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
            COMPONENT ${part})
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${part} PARENT_SCOPE)
endfunction()

set(about "The ZILVO button controls are user-interface controls for blackjack drills:
small composite widgets with typed properties, methods, events and saved
settings, found and created by their published identifiers.
.
This package has")
zilvo_package(Runtime libzilvo-platform${PROJECT_VERSION_MAJOR} libs "controls for blackjack drills - component and runtime"
"${about} the component with the seventeen controls, registered for
all users, and the platform that runs, hosts and finds the controls of any
component.")
zilvo_package(Development libzilvo-dev libdevel "controls for blackjack drills - development files"
"${about} what hosts of the controls and further components are
built with, in C++20, from CMake or with pkg-config." DEPENDS Runtime)
zilvo_package(Tools zilvo-tools devel "controls for blackjack drills - console host"
"${about} zilvo, which runs host scripts in Lua, describes components,
draws their controls, registers and validates them, without a screen." DEPENDS Runtime)
zilvo_package(Qt libzilvo-qt${PROJECT_VERSION_MAJOR} libs "controls for blackjack drills - widgets of Qt 6"
"${about} what shows the controls of any component as widgets of
Qt 6, with a class for each of the seventeen." DEPENDS Runtime RECOMMENDS "fonts-comic-neue, fonts-liberation")
zilvo_package(QtDevelopment libzilvo-qt-dev libdevel "controls for blackjack drills - development files for Qt 6"
"${about} what applications with the controls as widgets of Qt 6 are
built with. Together with zilvo-tools it makes typed widget classes of other
components, too." DEPENDS Qt Development EXTERNAL "qt6-base-dev (>= 6.4)" RECOMMENDS zilvo-tools)
zilvo_package(Drill zilvo-drill education "practise keeping the running count of blackjack cards"
"Cards are dealt from a shoe at a pace of your choice, to you and to the other
players of a table, while you keep the running count. Then you are asked for
it, the cards are shown again with the count after each, and your results are
kept.
.
It is played by pointer, by keyboard alone, or by ear alone with a screen
reader." DEPENDS Qt RECOMMENDS libqt6svg6)

# The component's registration for the machine, as long as its package is there.
set(file $<TARGET_FILE_NAME:ZilvoButtons-445>)
set(registration ${debian}/ZilvoButtons-445)
add_custom_command(OUTPUT ${registration} VERBATIM
    COMMAND ${CMAKE_COMMAND} -E rm -f ${registration} ${registration}.lock
    COMMAND zilvo register $<TARGET_FILE:ZilvoButtons-445> --registrations ${registration} > ${registration}.listed
    COMMAND sed -i "s|= /.*/${file}|= ${CMAKE_INSTALL_FULL_LIBDIR}/zilvo/${file}|" ${registration}
    COMMAND zilvo registrations --registrations ${registration} > ${registration}.listed
    DEPENDS zilvo ZilvoButtons-445)
add_custom_target(registration ALL DEPENDS ${registration})
install(FILES ${registration} DESTINATION ${CMAKE_INSTALL_DATADIR}/zilvo/registrations.d COMPONENT Runtime)

# Libraries come and go by the trigger. CPack would write scripts for it, did it not hear of others, which are nowhere.
file(WRITE ${debian}/triggers "activate-noawait ldconfig\n")
foreach(key RUNTIME QT)
    set(CPACK_DEBIAN_${key}_PACKAGE_CONTROL_EXTRA ${debian}/triggers ${debian}/none/postinst ${debian}/none/postrm)
endforeach()

include(CPack)
