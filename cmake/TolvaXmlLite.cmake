# The import library of the system's XmlLite. The Windows SDK has one; MinGW-w64 does not, so there
# it is made from a list of what the library imports.
add_library(tolva_xmllite INTERFACE)
if(MSVC)
  target_link_libraries(tolva_xmllite INTERFACE xmllite)
else()
  set(definition ${CMAKE_CURRENT_SOURCE_DIR}/platform/windows/xmllite.def)
  set(import_library ${CMAKE_CURRENT_BINARY_DIR}/libxmllite.a)
  add_custom_command(OUTPUT ${import_library}
                     COMMAND ${CMAKE_DLLTOOL} -d ${definition} -l ${import_library}
                     DEPENDS ${definition} VERBATIM)
  add_custom_target(tolva_xmllite_import DEPENDS ${import_library})
  add_dependencies(tolva_xmllite tolva_xmllite_import)
  target_link_libraries(tolva_xmllite INTERFACE ${import_library})
endif()
