#include "desktop/desk/finder.h"

#include <algorithm>

#include "core/desk/replacement.h"
#include "core/document/alphabet.h"
#include "core/platform/errors.h"
#include "core/texts/ui_sentence.h"
#include "desktop/qt_text.h"

namespace vendlingua {

Finder::Finder(const Workspace& workspace, FindBar& bar, MessageTable& messages)
    : QObject(&bar), workspace_(workspace), bar_(bar), messages_(messages) {
  connect(&bar, &FindBar::SearchChanged, this, &Finder::Search);
  connect(&bar, &FindBar::NextWanted, this, &Finder::GoToNext);
  connect(&bar, &FindBar::PreviousWanted, this, &Finder::GoToPrevious);
}

void Finder::Search() {
  search_ = bar_.SearchIn(Alphabet::Of(workspace_.set.DisplayType));
  messages_.SetSearch(search_);
  if (search_.IsEmpty() || !search_.error().isEmpty()) {
    bar_.ShowResult(search_.error(), false);
  } else {
    Go(Direction::kDown, Start::kAtCurrent);
  }
}

bool Finder::HasHit(std::size_t message) const {
  const MessageSet& set = workspace_.set;
  const Alphabet& alphabet = Alphabet::Of(set.DisplayType);
  const auto hits = [&](SearchedTexts where, const MessageTexts& texts) {
    return search_.LooksAt(where) && search_.Hits(texts.at(message).First(set.Width()), alphabet);
  };
  return hits(SearchedTexts::kOrigin, set.OriginText) ||
         (set.DestinationIsOpen() && hits(SearchedTexts::kDestination, set.DestText));
}

std::vector<int> Finder::RowsWithHits() const {
  std::vector<int> rows;
  for (std::size_t row = 0; row < messages_.messages().size(); ++row) {
    if (HasHit(messages_.messages()[row])) {
      rows.push_back(static_cast<int>(row));
    }
  }
  return rows;
}

void Finder::Go(Direction direction, Start start) {
  if (search_.IsEmpty()) {
    return;
  }
  const std::vector<int> rows = RowsWithHits();
  if (rows.empty()) {
    bar_.ShowResult(FromUtf8(workspace_.ui_text[UiTextId::kNothingFound]), false);
    return;
  }
  const int current = messages_.IndexOf(workspace_.set.current_message, 0).row();
  auto hit = std::ranges::lower_bound(rows, current);
  if (direction == Direction::kUp) {
    hit = hit == rows.begin() ? rows.end() - 1 : hit - 1;
  } else {
    const bool at_current = hit != rows.end() && *hit == current;
    hit += at_current && start == Start::kBehindCurrent ? 1 : 0;
    hit = hit == rows.end() ? rows.begin() : hit;
  }
  const UiSentence result(UiTextId::kHit, hit - rows.begin() + 1, rows.size());
  bar_.ShowResult(FromUtf8(result.In(workspace_.ui_text)), true);
  emit Found(messages_.messages().at(static_cast<std::size_t>(*hit)));
}

DisplayCodes Finder::CodesFor(const QString& text) const {
  DrawnText drawn = Alphabet::Of(workspace_.set.DisplayType).CodesOf(text.toStdString());
  if (!drawn.unknown.empty()) {
    throw Error(UiSentence::Verbatim(workspace_.ui_text[UiTextId::kCharacterRefused] + " " +
                                     drawn.unknown.front()));
  }
  return drawn.codes;
}

Preview Finder::ReplacementPreview() const {
  const MessageSet& set = workspace_.set;
  Preview preview{.title = UiTextId::kReplace, .accept = UiTextId::kReplace};
  const auto& messages = messages_.messages();
  for (const std::size_t message :
       set.DestinationIsOpen() ? messages : std::vector<std::size_t>()) {
    const CellText text(set, message);
    std::vector<Replacement> replacements;
    for (const auto& hit :
         search_.Replace(text.cells(), bar_.ReplaceBy(), Alphabet::Of(set.DisplayType))) {
      replacements.push_back({hit.range, CodesFor(hit.by)});
    }
    if (!replacements.empty()) {
      preview.rows.push_back(
          {message, text.Text(), WithReplacements(text, replacements), QString()});
    }
  }
  const auto fitting = std::ranges::count_if(
      preview.rows, [](const PreviewRow& row) { return row.after.has_value(); });
  const auto others = static_cast<std::ptrdiff_t>(preview.rows.size()) - fitting;
  preview.summary =
      FromUtf8(UiSentence(UiTextId::kReplacePreview, fitting, others).In(workspace_.ui_text));
  return preview;
}

}  // namespace vendlingua
