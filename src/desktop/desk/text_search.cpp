#include "desktop/desk/text_search.h"

namespace vendlingua {
namespace {

constexpr char32_t kLastAscii = 0x7F;

// One character a cell, so that the places of hits are cells.
QString CharactersOf(std::span<const DisplayCode> codes, const Alphabet& alphabet) {
  QString text;
  text.reserve(static_cast<qsizetype>(codes.size()));
  for (const DisplayCode code : codes) {
    text += QChar(static_cast<char16_t>(alphabet.CharacterOf(code)));
  }
  return text;
}

// What people type in the characters that cells have: of letters that look alike the display has
// one.
QString AsDrawn(const QString& text, const Alphabet& alphabet) {
  QString drawn;
  for (const char32_t character : text.toUcs4()) {
    const auto code = character > kLastAscii ? alphabet.CodeOf(character) : std::nullopt;
    const char32_t shown = code ? alphabet.CharacterOf(*code) : character;
    drawn += QString::fromUcs4(&shown, 1);
  }
  return drawn;
}

CellRun RangeOf(const QRegularExpressionMatch& match) {
  return {static_cast<std::size_t>(match.capturedStart()),
          static_cast<std::size_t>(match.capturedLength())};
}

QString WithGroups(const QString& by, const QRegularExpressionMatch& match) {
  QString text;
  for (qsizetype i = 0; i < by.size(); ++i) {
    const bool group = by[i] == QLatin1Char('\\') && i + 1 < by.size() && by[i + 1].isDigit();
    text += group ? match.captured(by[++i].digitValue()) : QString(by[i]);
  }
  return text;
}

}  // namespace

TextSearch::TextSearch(const QString& wanted, Kind kind, SearchedTexts texts,
                       const Alphabet& alphabet)
    : expression_(kind == Kind::kPlain ? QRegularExpression::escape(AsDrawn(wanted, alphabet))
                                       : AsDrawn(wanted, alphabet),
                  QRegularExpression::CaseInsensitiveOption |
                      QRegularExpression::UseUnicodePropertiesOption),
      kind_(kind),
      texts_(texts) {}

bool TextSearch::Hits(std::span<const DisplayCode> codes, const Alphabet& alphabet) const {
  if (IsEmpty() || !expression_.isValid()) {
    return false;
  }
  const QRegularExpressionMatch first = expression_.match(CharactersOf(codes, alphabet));
  return first.capturedLength() > 0 || (first.hasMatch() && !HitsIn(codes, alphabet).empty());
}

std::vector<CellRun> TextSearch::HitsIn(std::span<const DisplayCode> codes,
                                        const Alphabet& alphabet) const {
  std::vector<CellRun> hits;
  for (const Replaced& hit : Replace(codes, QString(), alphabet)) {
    hits.push_back(hit.range);
  }
  return hits;
}

std::vector<TextSearch::Replaced> TextSearch::Replace(std::span<const DisplayCode> codes,
                                                      const QString& by,
                                                      const Alphabet& alphabet) const {
  std::vector<Replaced> replaced;
  if (IsEmpty() || !expression_.isValid()) {
    return replaced;
  }
  auto matches = expression_.globalMatch(CharactersOf(codes, alphabet));
  while (matches.hasNext()) {
    const QRegularExpressionMatch match = matches.next();
    if (match.capturedLength() > 0) {
      replaced.push_back({RangeOf(match), kind_ == Kind::kPlain ? by : WithGroups(by, match)});
    }
  }
  return replaced;
}

}  // namespace vendlingua
