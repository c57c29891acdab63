# Warnings, as errors for developers.
function(tolva_add_warnings target)
  if(MSVC)
    target_compile_options(${target} INTERFACE /W4 /permissive- /utf-8 /bigobj)
    if(TOLVA_DEVELOPER)
      target_compile_options(${target} INTERFACE /WX)
    endif()
    return()
  endif()
  target_compile_options(${target} INTERFACE -Wall -Wextra -Wpedantic -Wconversion
                         -Wsign-conversion -Wshadow -Wold-style-cast -Wcast-qual
                         -Woverloaded-virtual -Wextra-semi)
  if(NOT WIN32)  # COM interfaces are destroyed through Release, and say so nowhere
    target_compile_options(${target} INTERFACE -Wnon-virtual-dtor)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 13)
    target_compile_options(${target} INTERFACE -Wreserved-identifier)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlapping copies in std::string where there are none (its bug 105651).
    target_compile_options(${target} INTERFACE -Wno-restrict)
  endif()
  if(TOLVA_DEVELOPER)
    target_compile_options(${target} INTERFACE -Werror)
  endif()
endfunction()
