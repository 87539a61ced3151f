#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <set>

#include "core/operations/editing.h"
#include "random_files.h"

namespace vendlingua {
namespace {

using test::AnyOf;
using test::kPlaceholderByte;
using test::OpenedFile;
using test::Placeholders;
using test::RandomMes;

// The texts that are in use, and one more, which nothing must touch.
std::vector<std::string> TextsOf(const MessageTexts& texts, const RandomMes& file) {
  std::vector<std::string> result;
  for (std::size_t m = 0; m <= file.layout.last_msg + 1; ++m) {
    result.push_back(test::Text(texts.at(m).First(file.layout.width)));
  }
  return result;
}

// A ".MES" set being edited, and what its destination texts must be.
class EditedSet {
 public:
  explicit EditedSet(const RandomMes& file)
      : file_(file), width_(file.layout.width), opened_("SET.MES", file.Bytes()) {
    engine().languages.ChooseOrigin(static_cast<int>(AnyOf(0, file.Languages())));
    engine().languages.ChooseDestination(static_cast<int>(AnyOf(1, file.Languages())));
    origin_ = TextsOf(engine().workspace.set.OriginText, file_);
    expected_ = Texts();
  }

  Engine& engine() { return opened_.engine; }
  std::vector<std::string> Texts() { return TextsOf(engine().workspace.set.DestText, file_); }
  const std::vector<std::string>& expected() const { return expected_; }

  void AnyStep() {
    Editing& editing = engine().editing;
    switch (AnyOf(0, 4)) {
      case 0:
        editing.StoreCurrentMessage();
        Store();
        break;
      case 1: {
        const DisplayCodes text = *test::RandomTexts(width_ + 3);
        editing.ChangeText(text);
        Type(test::InCells(text, width_));
        break;
      }
      case 2: {
        const std::size_t cell = AnyOf(0, width_ - 1);
        editing.Drop('!', static_cast<int>(10 * cell + 5), static_cast<int>(10 * width_));
        std::string box = Box();
        box[cell] = '!';
        Type(box);
        break;
      }
      default:
        Store();
        shown_ = AnyOf(0, file_.layout.last_msg);
        typed_.reset();
        editing.GoTo(shown_);
    }
  }

 private:
  // What the edit box holds: what was typed, or the stored text without its placeholders.
  std::string Box() const {
    if (typed_) {
      return *typed_;
    }
    std::string box = expected_[shown_];
    std::replace(box.begin(), box.end(), kPlaceholderByte, ' ');
    return box;
  }
  void Type(const std::string& box) {
    typed_ = box;
    Store();
  }
  void Store() {
    expected_[shown_] = Box();
    for (std::size_t i = 0; i < width_; ++i) {
      if (origin_[shown_][i] == kPlaceholderByte) {
        expected_[shown_][i] = kPlaceholderByte;
      }
    }
  }

  RandomMes file_;
  std::size_t width_;
  OpenedFile opened_;
  std::vector<std::string> origin_;
  std::vector<std::string> expected_;
  std::size_t shown_ = 0;
  std::optional<std::string> typed_;
};

RC_GTEST_PROP(EditingProperty, StoresVisitedMessagesWithTheirPlaceholdersAndNoOthers, ()) {
  const RandomMes file = *test::RandomMesFiles(Placeholders::kMany);
  EditedSet set(file);
  for (std::size_t steps = AnyOf(0, 30); steps > 0; --steps) {
    set.AnyStep();
    RC_ASSERT(set.Texts() == set.expected());
  }
}

RC_GTEST_PROP(EditingProperty, PagingAloneKeepsADestinationThatHasTheOriginsPlaceholders, ()) {
  const RandomMes file = *test::RandomMesFiles(Placeholders::kMany);
  OpenedFile opened("SET.MES", file.Bytes());
  Engine& engine = opened.engine;
  const auto language = static_cast<int>(AnyOf(1, file.Languages()));
  engine.languages.ChooseOrigin(language);
  engine.languages.ChooseDestination(language);
  const auto before = TextsOf(engine.workspace.set.DestText, file);
  for (std::size_t steps = AnyOf(0, 30); steps > 0; --steps) {
    engine.editing.GoTo(AnyOf(0, file.layout.last_msg));
  }
  engine.editing.StoreCurrentMessage();
  RC_ASSERT(TextsOf(engine.workspace.set.DestText, file) == before);
}

}  // namespace
}  // namespace vendlingua
