# The headers of libraries take the compiler longer than most sources of ours, so what nearly all sources of
# a target read is compiled once. Every source includes what it uses all the same: the linter reads them
# without this, and -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON builds them without.
set(VENDLINGUA_STANDARD_HEADERS
  <algorithm> <array> <cstddef> <cstdint> <filesystem> <functional> <map> <optional> <span> <string>
  <string_view> <system_error> <utility> <vector> <fmt/format.h>)

# ccache keeps nothing that was compiled with them.
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache" AND NOT DEFINED CMAKE_DISABLE_PRECOMPILE_HEADERS)
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
