#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_EDITOR_PANEL_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_EDITOR_PANEL_H_

#include <QFrame>
#include <QLabel>
#include <QPoint>
#include <QPushButton>
#include <QScrollArea>
#include <QWidget>
#include <array>
#include <optional>

#include "core/presentation/view_state.h"
#include "desktop/main_window/character_map.h"
#include "desktop/main_window/destination_edit.h"
#include "desktop/main_window/message_number.h"
#include "desktop/main_window/message_selector.h"
#include "desktop/main_window/origin_label.h"
#include "desktop/main_window/status_line.h"

namespace vendlingua {

/// The editing view of the main window. It shows the state of the view and says what the user does;
/// it changes nothing by itself but the preview.
class EditorPanel : public QWidget {
  Q_OBJECT

 public:
  explicit EditorPanel(QWidget* parent);

  /// Shows the view, its cells spoken in the interface language.
  void Show(const ViewState& view, const UiText& ui_text);

  /// Puts `entries` on top of the edit box's menu.
  void OfferInEditMenu(const QList<QAction*>& entries) { Text1_->OfferInMenu(entries); }

  /// Captions the controls in the interface language.
  void SetEditorCaptions(const UiText& ui_text);

 signals:
  void Scrolled(int value);
  void TextChanged(const DisplayCodes& text);
  /// A key was pressed in the edit box that did not change its text.
  void KeyPressed();
  /// `code` was dropped `x` pixels from the beginning of the text, whose cells are `text_width`
  /// pixels wide together.
  void CharacterDropped(DisplayCode code, int x, int text_width);
  /// `characters` were typed or pasted and have no display code.
  void CharactersRefused(const QStringList& characters);
  /// The copy menu is wanted at `position`, relative to this panel.
  void CopyMenuWanted(const QPoint& position);
  /// The number of the message was clicked.
  void NumberClicked();
  /// The status is to be shown in full.
  void DetailsWanted();
  void HeightToggled();
  void MessageAdded();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void PlaceControls();
  void ConnectControls();
  QLabel* AddLabel(const QString& name);
  void ShowDisplayType(std::size_t type);
  void SetTextWidth(int label_width);
  void Preview(DisplayCode code);

  std::array<OriginLabel*, kOriginCells> Label5_{};
  DestinationEdit* Text1_ = nullptr;
  MessageSelector* HScroll1_;
  MessageNumber* Label6_;
  QLabel* Label7_;
  std::array<QLabel*, 2> Label8_{};
  std::array<QLabel*, 2> Label9_{};
  QPushButton* Command1_;
  QPushButton* Command2_;
  CharacterMap* map_ = nullptr;
  QScrollArea* map_area_;
  QFrame* edit_frame_;
  StatusLine* status_line_;
  std::optional<std::size_t> display_type_;
  int text_width_ = 0;  // pixels, of all cells of a message
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_EDITOR_PANEL_H_
