# What a user of the library gets: headers, two shared libraries, find_package(vokm) and vokm.pc.
include(CMakePackageConfigHelpers)

set_target_properties(vokmm7 PROPERTIES EXPORT_NAME vokm)
add_library(vokm::vokm ALIAS vokmm7)
target_include_directories(vokmm7 PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>)
# The two libraries lie side by side; this lets the linker and the loader find the core next to the one that needs it.
set_target_properties(vokmm7 PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS vokmm7 vokcore EXPORT vokm
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vokm)
install(EXPORT vokm NAMESPACE vokm:: FILE vokm-config.cmake DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/vokm-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/vokm-config-version.cmake DESTINATION ${package_dir})

# The prefix is told relative to the file, so that an installed tree can be moved as a whole.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE VOKM_PREFIX)
configure_file(${CMAKE_CURRENT_LIST_DIR}/vokm.pc.in ${PROJECT_BINARY_DIR}/vokm.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vokm.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
unset(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME)
