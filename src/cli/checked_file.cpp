#include "cli/checked_file.h"

#include <fmt/format.h>

#include <numeric>
#include <set>

#include "core/formats/mes_layout.h"
#include "core/platform/errors.h"

namespace vendlingua::cli {
namespace {

// What a language would take of the next one would be found to be wrong with both.
void RefuseOverlap(const MessageSet& set) {
  const std::int64_t end_of_last = MesMessageOffset(set, 0, set.MessageCount());
  if (set.IsMes() && MesBlockOffset(set, 1) < end_of_last) {
    throw CommandFailed(
        fmt::format("{}: its {} messages do not fit a language block of {:.0f} bytes; \"verify\" "
                    "says what is wrong with the file",
                    PathText(set.CurrentFileName), set.MessageCount(), set.BlockLength));
  }
}

std::vector<LanguageTexts> ReadSound(const MessageSet& set) {
  RefuseOverlap(set);
  return ReadLanguages(set);
}

}  // namespace

CheckedFile::CheckedFile(const Session& session, const std::string& origin)
    : languages_(ReadSound(session.set())),
      basis_(session.set(), languages_,
             origin.empty() ? UsualOrigin(session.set()) : session.FindLanguage(origin),
             session.alphabet()) {}

std::vector<int> CheckedFile::Languages() const {
  std::vector<int> languages(languages_.size() - 1);
  std::iota(languages.begin(), languages.end(), 1);
  return languages;
}

std::vector<int> CheckedFile::Chosen(const Session& session,
                                     const std::vector<std::string>& chosen) const {
  if (chosen.empty()) {
    return Languages();
  }
  std::set<int> languages;
  for (const std::string& language : chosen) {
    languages.insert(session.FindLanguage(language));
  }
  return {languages.begin(), languages.end()};
}

LanguageCheck CheckedFile::CheckOf(int language, const Rules& rules) const {
  const LanguageTexts& read = Read(language);
  return {basis_, language, read.texts, read.held, rules};
}

}  // namespace vendlingua::cli
