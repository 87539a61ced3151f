#ifndef VENDLINGUA_CORE_PRESENTATION_VIEW_STATE_H_
#define VENDLINGUA_CORE_PRESENTATION_VIEW_STATE_H_

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/display_code.h"
#include "core/document/workspace.h"
#include "core/presentation/document_state.h"

namespace vendlingua {

inline constexpr std::string_view kApplicationTitle = "Vendlingua";

/// One origin cell: pale for an ordinary character, dark where the board fills in.
struct OriginCell {
  bool visible = false;
  bool dark = false;
  std::optional<DisplayCode> caption;  ///< nothing: an empty cell
};

/// What the editing view shows, under the names of its controls. Sizes are in twips.
struct ViewState {
  std::array<OriginCell, kOriginCells> Label5;
  std::array<bool, 2> Label8Enabled{};  ///< headings of the origin row and of the edit row
  bool Label9Visible = false;           ///< marker of the language-name message
  int Label6 = 0;                       ///< number of the message shown

  struct {
    DisplayCodes text;
    std::size_t cells = 0;       ///< of a message
    std::size_t max_length = 0;  ///< characters; 0 for no limit
    bool enabled = false;
    std::vector<bool> board_cells{};  ///< those that the board fills
  } Text1;

  struct {
    int value = 0;
    int max = 0;
    bool enabled = false;
  } HScroll1;

  bool Command1Enabled = false;
  bool Command2Visible = false;
  int label_width = 0;  ///< of each text label; 0 for that of the design
  int height = 0;       ///< of the main window
  std::string caption;  ///< of the main window, UTF-8
  std::string status;   ///< how the last command ended, UTF-8
  DocumentState StatusState;
  std::optional<UiTextId> next_step;  ///< what to do now
  std::size_t display_type = 0;
};

/// The view of what is open.
ViewState ViewOf(const Workspace& workspace);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PRESENTATION_VIEW_STATE_H_
