#ifndef VENDLINGUA_CORE_DESK_CELL_RUN_H_
#define VENDLINGUA_CORE_DESK_CELL_RUN_H_

#include <cstddef>

namespace vendlingua {

/// Cells of a message that follow each other.
struct CellRun {
  std::size_t first;
  std::size_t count;

  std::size_t End() const { return first + count; }
  bool operator==(const CellRun&) const = default;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_CELL_RUN_H_
