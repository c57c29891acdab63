# Link-time optimization of the library: TOLVA_LTO.
include(CheckIPOSupported)

set(lto_works OFF)
if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT TOLVA_SANITIZE AND NOT TOLVA_FUZZ)
  check_ipo_supported(RESULT lto_works LANGUAGES CXX)
endif()
option(TOLVA_LTO "Optimize the library as a whole when it is linked" ${lto_works})

# tolva_enable_lto(<library> <objects> <settings>): the library is optimized as a whole. The other
# programs that are made of the objects are not, so that they link fast, and so that both kinds of
# code are tested. The command-line tool is one of them: optimized as a whole, it is no faster. The
# settings are those that all of them have.
function(tolva_enable_lto library objects settings)
  if(NOT TOLVA_LTO)
    return()
  endif()
  set_target_properties(${library} PROPERTIES INTERPROCEDURAL_OPTIMIZATION ON)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${objects} PRIVATE -flto=auto -ffat-lto-objects)
    target_link_options(${settings} INTERFACE
      $<$<NOT:$<BOOL:$<TARGET_PROPERTY:INTERPROCEDURAL_OPTIMIZATION>>>:-fno-lto>)
  else()
    # Objects of other compilers are for one kind of linking alone.
    set_target_properties(${objects} PROPERTIES INTERPROCEDURAL_OPTIMIZATION ON)
    target_link_options(${settings} INTERFACE
      ${CMAKE_CXX_COMPILE_OPTIONS_IPO} ${CMAKE_CXX_LINK_OPTIONS_IPO})
  endif()
endfunction()
