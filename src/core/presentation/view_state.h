#ifndef VENDLINGUA_CORE_PRESENTATION_VIEW_STATE_H_
#define VENDLINGUA_CORE_PRESENTATION_VIEW_STATE_H_

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "core/document/display_code.h"

namespace vendlingua {

inline constexpr std::size_t kOriginCells = 20;

/// One origin cell: pale for an ordinary character, dark where the board fills in.
struct OriginCell {
  bool visible = false;
  bool dark = false;
  std::optional<DisplayCode> caption;  ///< nothing: an empty cell
};

/// What the editing view shows, as plain data under the names of its controls: the operations read
/// and write it, the window mirrors it. Sizes are in twips.
struct ViewState {
  static constexpr int kCompactHeight = 2925;
  static constexpr int kFullHeight = 8535;

  std::array<OriginCell, kOriginCells> Label5;
  std::array<bool, 2> Label8Enabled{};  ///< headings of the origin row and of the edit row
  bool Label9Visible = false;           ///< marker of the language-name message
  int Label6 = 0;                       ///< number of the message shown

  struct {
    DisplayCodes text;
    std::size_t max_length = 0;  ///< characters; 0 for no limit
    bool enabled = false;
  } Text1;

  struct {
    int value = 0;
    int max = 0;
    bool enabled = false;
  } HScroll1;

  bool Command1Enabled = false;
  bool Command2Visible = false;
  int label_width = 0;          ///< of each text label
  int height = kCompactHeight;  ///< of the main window
  std::string caption;          ///< of the main window, UTF-8
  std::string status;           ///< how the last command ended, UTF-8
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PRESENTATION_VIEW_STATE_H_
