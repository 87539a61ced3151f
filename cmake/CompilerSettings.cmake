# What every target of ours is compiled with: all warnings, and all of them errors.
add_library(vendlingua_settings INTERFACE)
target_compile_options(vendlingua_settings INTERFACE
  -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor -Werror)

# GCC 12 takes the concatenation of strings for overlapping copies (its bug 105651) and what Boost's
# interval maps write into their nodes for an overflow.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(vendlingua_settings INTERFACE -Wno-restrict -Wno-stringop-overflow)
endif()

if(VENDLINGUA_COVERAGE)
  target_compile_options(vendlingua_settings INTERFACE --coverage)
  target_link_options(vendlingua_settings INTERFACE --coverage)
endif()
