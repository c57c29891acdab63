# What is installed of the library: itself, headers, packages for CMake and pkg-config. A component is
# a package: libtolva1 for programs that are there, libtolva-dev for those that are to be built.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME libtolva-dev)
include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/tolva)
install(TARGETS tolva tolva_support EXPORT tolva-targets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT libtolva1
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT libtolva1
                NAMELINK_COMPONENT libtolva-dev
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/tolva support/include/tolva DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT tolva-targets NAMESPACE tolva:: DESTINATION ${package_dir})
configure_package_config_file(cmake/tolva-config.cmake.in tolva-config.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(tolva-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/tolva-config.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/tolva-config-version.cmake
        DESTINATION ${package_dir})
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(TOLVA_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
  set(TOLVA_PC_LIBDIR "${CMAKE_INSTALL_LIBDIR}")
else()
  # Relative to the file itself, so that the package can be installed and moved anywhere.
  file(RELATIVE_PATH to_prefix "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
  string(REGEX REPLACE "/$" "" to_prefix "${to_prefix}")
  set(TOLVA_PC_PREFIX "\${pcfiledir}/${to_prefix}")
  set(TOLVA_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
foreach(package tolva tolva-support)
  configure_file(cmake/${package}.pc.in ${package}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
