# Packages for Debian, one for each component: libtolva1, libtolva-dev, tolva. `make packages` builds
# them with the settings that they are meant for (tools/make-packages.sh).
set(TOLVA_MAINTAINER "The developers of tolva <tolva@example.org>" CACHE STRING
    "Who maintains the Debian packages")
mark_as_advanced(TOLVA_MAINTAINER)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "${TOLVA_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/cmake/debian/compress.cmake)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL libtolva1 libtolva-dev)
if(TARGET tolva_tool)
  list(APPEND CPACK_COMPONENTS_ALL tolva)
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR})

set(same_version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(CPACK_DEBIAN_LIBTOLVA1_PACKAGE_NAME libtolva1)
set(CPACK_DEBIAN_LIBTOLVA1_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_LIBTOLVA1_DESCRIPTION
"Typed objects for the elements of eleven XML documents, which are read and
written in one forward pass. Programs that were built with libtolva-dev need
this package.")
set(CPACK_DEBIAN_LIBTOLVA-DEV_PACKAGE_NAME libtolva-dev)
set(CPACK_DEBIAN_LIBTOLVA-DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_LIBTOLVA-DEV_PACKAGE_DEPENDS "libtolva1 ${same_version}")
set(CPACK_DEBIAN_LIBTOLVA-DEV_PACKAGE_SHLIBDEPS OFF)
set(CPACK_COMPONENT_LIBTOLVA-DEV_DESCRIPTION
"The headers of the library and of its support library, the support library
itself, and packages for CMake and pkg-config.")
set(CPACK_DEBIAN_TOLVA_PACKAGE_NAME tolva)
set(CPACK_DEBIAN_TOLVA_PACKAGE_SECTION utils)
set(CPACK_COMPONENT_TOLVA_DESCRIPTION
"Checks, explains, makes, changes, formats, compares and converts the
configuration documents of the agent, and makes schemas of them.")

# ---- what every package has --------------------------------------------------------------------

set(made ${CMAKE_CURRENT_BINARY_DIR}/debian)
file(MAKE_DIRECTORY ${made})
string(TIMESTAMP release_date "%a, %d %b %Y %H:%M:%S +0000" UTC)  # SOURCE_DATE_EPOCH, if that is set
configure_file(cmake/debian/changelog.in ${made}/changelog @ONLY)
find_program(TOLVA_GZIP gzip REQUIRED)
mark_as_advanced(TOLVA_GZIP)
execute_process(COMMAND ${TOLVA_GZIP} -9nc ${made}/changelog
                OUTPUT_FILE ${made}/changelog.Debian.gz COMMAND_ERROR_IS_FATAL ANY)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  install(FILES cmake/debian/copyright ${made}/changelog.Debian.gz
          DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${component} COMPONENT ${component})
endforeach()

# ---- what tells other packages what they need --------------------------------------------------

file(STRINGS abi/exports-linux.txt exports)
set(symbols "libtolva.so.${PROJECT_VERSION_MAJOR} libtolva1 #MINVER#\n")
foreach(symbol IN ITEMS TOLVA_1 ${exports})
  string(APPEND symbols " ${symbol}@TOLVA_1 1.0.0\n")
endforeach()
string(REPLACE " #MINVER#" " (>= 1.0.0)" symbols "${symbols}")
file(WRITE ${made}/symbols "${symbols}")
file(WRITE ${made}/shlibs "libtolva ${PROJECT_VERSION_MAJOR} libtolva1 (>= 1.0.0)\n")
file(WRITE ${made}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBTOLVA1_PACKAGE_CONTROL_EXTRA
    ${made}/symbols ${made}/shlibs ${made}/triggers)

include(CPack)
