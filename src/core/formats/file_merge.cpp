#include "core/formats/file_merge.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/formats/mes_file.h"
#include "core/formats/message_texts.h"
#include "core/formats/msx_file.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// The fields of a header that no save changes; nothing for a content that has none.
std::optional<MesHeader> LayoutOf(std::string_view content) {
  try {
    constexpr unsigned int kBoardFlags = 3;
    MesHeader header = ParseMesHeader(content);
    header.flags = static_cast<std::uint8_t>(header.flags & kBoardFlags);
    header.last_msg = 0;
    return header;
  } catch (const Error&) {
    return std::nullopt;
  }
}

bool IsSameMes(std::string_view before, std::string_view now) {
  const auto layout = LayoutOf(before);
  return layout && layout == LayoutOf(now) && now.size() >= before.size();
}

// A save replaces data and checksum of a message's line by others of the same length, and ends a
// last line that had no end.
bool IsSameLine(const TextLine& before, const TextLine& now) {
  const bool same_end =
      before.end == now.end || (before.end == LineEnd::kEndOfFile && now.end == LineEnd::kCrAndLf);
  const bool same_text = before.text.starts_with("S2")
                             ? LenientRecord(before.text).Head() == LenientRecord(now.text).Head()
                             : before.text == now.text;
  return same_end && same_text && before.text.size() == now.text.size();
}

bool IsSameMsx(std::string_view before, std::string_view now) {
  TextLines lines_before(before);
  TextLines lines_now(now);
  while (const auto a = lines_before.Next()) {
    const auto b = lines_now.Next();
    if (!b || !IsSameLine(*a, *b)) {
      return false;
    }
  }
  return lines_now.AtEnd();
}

class Merge {
 public:
  Merge(const MessageSet& set, const std::string& content,
        const std::vector<DecidedConflict>& decided)
      : set_(set), content_(content), decided_(decided), merged_(set) {
    RequireSameFile(set, content);
  }

  void TakeNames() {
    if (set_.IsMsx()) {
      // They are messages of their languages.
      const auto names = ReadMsxNames(set_, content_).value_or(std::vector<std::string>());
      merged_.language_names.resize(1);
      merged_.language_names.insert(merged_.language_names.end(), names.begin(), names.end());
      return;
    }
    const std::vector<std::string> before = ReadMesNames(set_, set_.file_content);
    std::vector<std::string> names = ReadMesNames(set_, content_);
    for (std::size_t i = 1; i < std::min(before.size(), set_.language_names.size()); ++i) {
      const std::string& mine = set_.language_names[i];
      names[i] = Decide(std::optional(before[i]), mine, names[i],
                        {static_cast<int>(i), mine, std::nullopt, ToDisplayCodes(mine).codes,
                         ToDisplayCodes(names[i]).codes});
    }
    names.front() = set_.language_names.front();
    merged_.language_names = std::move(names);
  }

  void TakeHeader() {
    if (!set_.IsMes()) {
      return;
    }
    const MesHeader before = ParseMesHeader(set_.file_content);
    const MesHeader now = ParseMesHeader(content_);
    last_before_ = before.last_msg;
    last_now_ = now.last_msg;
    display_type_now_ = now.DisplayType();
    if (set_.DisplayType == before.DisplayType()) {
      merged_.LoadDisplayType(now.DisplayType());
    }
    merged_.LastMsg = std::max(set_.LastMsg, now.last_msg);
    if (merged_.LastMsg != set_.LastMsg) {
      // Taking back a message that was added would take theirs away.
      merged_.history = EditHistory();
      merged_.FitTexts();
    }
  }

  void TakeTexts() {
    const int language = set_.IsMsx() ? std::max<int>(set_.DestLang, 1) : set_.DestLang;
    if (!set_.FileIsThere() || language == 0) {
      return;
    }
    const MessageTexts before = TextsOf(merged_, set_.file_content, language);
    const MessageTexts now = TextsOf(merged_, content_, language);
    for (std::size_t i = 0; i < now.size(); ++i) {
      if (i > set_.LastMsg) {
        merged_.DestText[i] = now[i];
      } else if (i <= last_now_) {
        merged_.DestText[i] = Decide(i <= last_before_ ? std::optional(before[i]) : std::nullopt,
                                     set_.DestText[i], now[i], ConflictAt(language, i, now[i]));
      }
    }
    if (merged_.saved) {
      merged_.saved = MessageSet::Saved{merged_.DestText, last_now_, display_type_now_};
      std::copy(now.begin(), now.end(), merged_.saved->texts.begin());
    }
  }

  void TakeOrigin() {
    if (!set_.origin_language || !IsInFile(set_, *set_.origin_language)) {
      return;
    }
    const MessageTexts texts = TextsOf(merged_, content_, *set_.origin_language);
    std::copy(texts.begin(), texts.end(), merged_.OriginText.begin());
  }

  const std::vector<EditConflict>& conflicts() const { return conflicts_; }

  MessageSet Merged() && {
    merged_.file_content = content_;
    return std::move(merged_);
  }

 private:
  // Nothing in `before` stands for what was not there.
  template <typename Value>
  Value Decide(const std::optional<Value>& before, const Value& mine, const Value& theirs,
               const EditConflict& conflict) {
    if (mine == theirs || theirs == before) {
      return mine;
    }
    if (mine == before) {
      return theirs;
    }
    const auto decided =
        std::find_if(decided_.begin(), decided_.end(),
                     [&](const DecidedConflict& d) { return d.conflict == conflict; });
    if (decided == decided_.end()) {
      conflicts_.push_back(conflict);
      return mine;
    }
    return decided->answer == ConflictAnswer::kKeepMine ? mine : theirs;
  }

  EditConflict ConflictAt(int language, std::size_t message, const DisplayText& theirs) const {
    const auto cells = [this](const DisplayText& text) {
      const auto shown = text.First(set_.Width());
      return DisplayCodes(shown.begin(), shown.end());
    };
    const auto number = static_cast<std::size_t>(language);
    const auto& names = set_.language_names;
    return {language, number < names.size() ? names[number] : "", message,
            cells(set_.DestText[message]), cells(theirs)};
  }

  const MessageSet& set_;
  const std::string& content_;
  const std::vector<DecidedConflict>& decided_;
  MessageSet merged_;
  std::vector<EditConflict> conflicts_;
  std::uint16_t last_before_ = set_.LastMsg;
  std::uint16_t last_now_ = set_.LastMsg;
  std::size_t display_type_now_ = set_.DisplayType;
};

}  // namespace

void RequireSameFile(const MessageSet& set, std::string_view content) {
  if (set.IsMes() && content.size() < kMesHeaderBytes) {
    throw FileChangedError(set.CurrentFileName, UiTextId::kHeaderIsLost, content.size());
  }
  const bool is_same =
      set.IsMes() ? IsSameMes(set.file_content, content) : IsSameMsx(set.file_content, content);
  if (!is_same) {
    throw FileChangedError(set.CurrentFileName, UiTextId::kFileWasReplaced);
  }
}

std::vector<EditConflict> TakeOverChanges(MessageSet& set, const std::string& content,
                                          const std::vector<DecidedConflict>& decided) {
  if (content == set.file_content) {
    return {};
  }
  Merge merge(set, content, decided);
  merge.TakeNames();
  merge.TakeHeader();
  merge.TakeOrigin();
  merge.TakeTexts();
  std::vector<EditConflict> conflicts = merge.conflicts();
  if (conflicts.empty()) {
    set = std::move(merge).Merged();
  }
  return conflicts;
}

void TakeOverFile(MessageSet& set, const std::string& content) {
  if (content != set.file_content) {
    const std::vector<DecidedConflict> none;
    Merge merge(set, content, none);
    merge.TakeNames();
    merge.TakeHeader();
    merge.TakeOrigin();
    set = std::move(merge).Merged();
  }
}

}  // namespace vendlingua
