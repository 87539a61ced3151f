#include "core/proof/proof_sheet.h"

#include <fmt/format.h>

#include <bitset>
#include <iterator>

#include "core/proof/glass.h"
#include "core/proof/proof_style.h"

namespace vendlingua {
namespace {

using UsedCodes = std::bitset<256>;
using Out = std::back_insert_iterator<std::string>;

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

void DrawGlyph(Out out, DisplayCode code, const Glyph& glyph) {
  fmt::format_to(out, "<path id=\"g{:02X}\" d=\"", code);
  for (std::size_t y = 0; y < Glyph::kRows; ++y) {
    for (std::size_t x = 0; x < Glyph::kColumns; ++x) {
      if (glyph.HasDot(x, y)) {
        fmt::format_to(out, "M{} {}h.85v.85h-.85z", x, y);
      }
    }
  }
  fmt::format_to(out, "\"/>\n");
}

// The glyphs of all codes that the sheet shows; the rows only refer to them.
void DrawGlyphs(Out out, const UsedCodes& used, const Alphabet& alphabet) {
  fmt::format_to(out, "<svg width=\"0\" height=\"0\" style=\"position:absolute\"><defs>\n");
  for (std::size_t i = 0; i < used.size(); ++i) {
    const auto code = static_cast<DisplayCode>(i);
    if (used[i]) {
      DrawGlyph(out, code, alphabet.GlyphOf(code));
    }
  }
  fmt::format_to(out, "</defs></svg>\n");
}

void DrawRow(Out out, const DisplayCodes& text, const Alphabet& alphabet, UsedCodes& used) {
  fmt::format_to(out,
                 "<td class=\"glass\"><svg class=\"row\" viewBox=\"-1 -1 {} {}\" role=\"img\" "
                 "aria-label=\"{}\">",
                 text.size() * kGlassCellColumns + 1, kGlassCellRows + 1,
                 Escaped(alphabet.TextOf(text)));
  std::size_t x = 0;
  for (const GlassCell& cell : GlassCells(text)) {
    if (cell.filled_by_board) {
      fmt::format_to(out, "<rect x=\"{}\" width=\"5\" height=\"8\"/>", x);
    }
    if (!alphabet.GlyphOf(cell.code).IsEmpty()) {
      used.set(cell.code);
      fmt::format_to(out, "<use href=\"#g{:02X}\" x=\"{}\"/>", cell.code, x);
    }
    x += kGlassCellColumns;
  }
  fmt::format_to(out, "</svg></td>");
}

void WriteMessage(Out out, const ProofMessage& message, const Alphabet& alphabet, UsedCodes& used) {
  fmt::format_to(out, "<tr><td class=\"number\">{}</td>", message.number);
  DrawRow(out, message.origin, alphabet, used);
  DrawRow(out, message.text, alphabet, used);
  fmt::format_to(out, "<td>");
  for (const std::string& finding : message.findings) {
    fmt::format_to(out, "<div class=\"findings\">{}</div>", Escaped(finding));
  }
  fmt::format_to(out, "<div class=\"remark\"></div></td></tr>\n");
}

void WriteLanguage(Out out, const ProofSheet& sheet, const ProofLanguage& language,
                   const Alphabet& alphabet, UsedCodes& used) {
  fmt::format_to(out,
                 "<section>\n<h2>{0}</h2>\n<table>\n<thead><tr><th class=\"number\">No.</th>"
                 "<th class=\"glass\">{1}</th><th class=\"glass\">{0}</th>"
                 "<th>Findings and remarks</th></tr></thead>\n",
                 Escaped(language.name), Escaped(sheet.origin_name));
  bool body_is_open = false;
  for (const ProofMessage& message : language.messages) {
    const bool is_first_row = message.number % kGlassRows == 0;
    if (!body_is_open || is_first_row) {
      fmt::format_to(out, "{}<tbody>\n", body_is_open ? "</tbody>\n" : "");
      body_is_open = true;
    }
    WriteMessage(out, message, alphabet, used);
  }
  fmt::format_to(out,
                 "{}</table>\n<div class=\"signature\"><span>Checked by</span><span>Date</span>"
                 "<span>Signature</span></div>\n</section>\n",
                 body_is_open ? "</tbody>\n" : "");
}

}  // namespace

std::string FormatProofSheet(const ProofSheet& sheet, const Alphabet& alphabet) {
  std::string languages;
  UsedCodes used;
  for (const ProofLanguage& language : sheet.languages) {
    WriteLanguage(std::back_inserter(languages), sheet, language, alphabet, used);
  }
  std::string html;
  const Out out = std::back_inserter(html);
  fmt::format_to(out,
                 "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                 "<title>{0}</title>\n<style>{1}</style>\n</head>\n<body>\n",
                 Escaped(sheet.file), kProofStyle);
  DrawGlyphs(out, used, alphabet);
  fmt::format_to(out,
                 "<h1>Proof of {}</h1>\n<p>Every message as the display shows it, beside its "
                 "origin. The board fills the darker cells; here they run through digits.</p>\n",
                 Escaped(sheet.file));
  html += languages;
  html += "</body>\n</html>\n";
  return html;
}

}  // namespace vendlingua
