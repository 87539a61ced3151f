# How everything is compiled.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Who names no build type gets the programs as users do.
get_property(many_build_types GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
if(NOT many_build_types AND NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Release, Debug, RelWithDebInfo or MinSizeRel" FORCE)
endif()

# MinSizeRel is for packages of distributions: small, and with the libraries of the distribution. Where the small
# functions of the standard library are not part of their callers, the rules of "check" take half as long again.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  string(APPEND CMAKE_CXX_FLAGS_MINSIZEREL
    " --param=max-inline-insns-size=20 --param=early-inlining-insns=10")
endif()

# What every target of ours is compiled with.
add_library(vendlingua_settings INTERFACE)
target_compile_options(vendlingua_settings INTERFACE
  -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor)
if(VENDLINGUA_WARNINGS_AS_ERRORS)
  target_compile_options(vendlingua_settings INTERFACE -Werror)
endif()

# GCC 12 sees overlapping copies and overflows in the strings of its own library (its bugs 105329 and
# 105651), in {fmt} and in Boost's interval maps.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(vendlingua_settings INTERFACE
    -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread)
endif()

# Keeps sources out of the unity build on Windows: they include windows.h, whose macros would give names in
# others another meaning.
function(keep_windows_apart)
  if(WIN32)
    set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  endif()
endfunction()

if(VENDLINGUA_COVERAGE)
  target_compile_options(vendlingua_settings INTERFACE -fprofile-instr-generate -fcoverage-mapping)
  target_link_options(vendlingua_settings INTERFACE -fprofile-instr-generate)
endif()

# What users get stops at an overrun instead of going on with it. Compilers of distributions do some of
# this by themselves, and define _FORTIFY_SOURCE, which must not be defined twice.
if(CMAKE_BUILD_TYPE MATCHES "^(Release|MinSizeRel)$")
  if(MINGW)
    target_compile_options(vendlingua_settings INTERFACE -fstack-protector-strong -D_GLIBCXX_ASSERTIONS)
    target_link_options(vendlingua_settings INTERFACE -fstack-protector-strong)
  elseif(UNIX AND NOT APPLE)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    target_compile_options(vendlingua_settings INTERFACE
      -fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2
      -D_GLIBCXX_ASSERTIONS)
    target_link_options(vendlingua_settings INTERFACE LINKER:-z,relro LINKER:-z,now)
  endif()
endif()
