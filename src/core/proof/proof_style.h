#ifndef VENDLINGUA_CORE_PROOF_PROOF_STYLE_H_
#define VENDLINGUA_CORE_PROOF_PROOF_STYLE_H_

#include <string_view>

namespace vendlingua {

/// How a proof sheet looks on the screen and on paper.
inline constexpr std::string_view kProofStyle = R"css(
@page { size: A4; margin: 12mm; }
* { box-sizing: border-box; }
body { font: 10pt/1.35 "DejaVu Sans", Verdana, Arial, sans-serif; color: #222; margin: 1.5em auto;
       max-width: 190mm; }
h1 { font-size: 15pt; margin: 0 0 .2em; }
h2 { font-size: 13pt; margin: 1.2em 0 .4em; }
section + section { break-before: page; }
p { margin: 0 0 .6em; }
table { border-collapse: collapse; width: 100%; table-layout: fixed; }
th { text-align: left; font-weight: normal; color: #555; font-size: 9pt; padding: 0 6px 3px; }
td { border-top: 1px solid #ddd; padding: 4px 6px; vertical-align: top; }
tbody { break-inside: avoid; border-bottom: 2px solid #999; }
thead { display: table-header-group; }
.number { width: 11mm; text-align: right; color: #555; }
.glass { width: 58mm; }
svg.row { display: block; width: 100%; height: auto; background: #dfe9b8; border-radius: 1px;
          print-color-adjust: exact; -webkit-print-color-adjust: exact; }
svg.row use { fill: #1d2a0a; }
svg.row rect { fill: #c3d184; }
.findings { color: #a03000; font-size: 8.5pt; }
.remark { border-bottom: 1px dotted #bbb; height: 1.5em; }
.signature { break-inside: avoid; display: flex; gap: 8mm; margin-top: 10mm; color: #555; }
.signature span { flex: 1; border-top: 1px solid #555; padding-top: 2px; font-size: 9pt; }
)css";

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PROOF_PROOF_STYLE_H_
