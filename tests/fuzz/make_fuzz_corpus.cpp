// Writes the first inputs of every fuzz target: small files put together by hand, sound ones and
// some that have gone wrong. Argument: the folder, which gets one folder a target.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "core/formats/copy_header.h"
#include "core/formats/edit_journal.h"
#include "core/marks/marks_file.h"
#include "core/platform/change_record.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::MesFile;

// What is done with a file: the targets take it from the last bytes of an input.
const std::string kChoices(24, '\x01');

void Write(const fs::path& folder, const std::vector<std::string>& inputs) {
  fs::create_directories(folder);
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    std::ofstream(folder / ("made_" + std::to_string(i)), std::ios::binary) << inputs[i];
  }
}

std::vector<std::string> MesFiles() {
  MesFile one_block;
  one_block.names = {"Default"};
  MesFile wide{.lang_count = 3, .width = 40, .last_msg = 4, .flags = "0F", .stride = 5};
  wide.names = {"Default", "ITALIANO", "ENGLISH", "DEUTSCH"};
  MesFile nine_slots{.lang_count = 9, .width = 2, .last_msg = 1, .flags = "03", .stride = 2};
  nine_slots.mem_start = "00FF0000";
  nine_slots.names.assign(10, "LINGUA");
  const std::string usual = MesFile().Bytes();
  std::string wrapping = usual;
  wrapping.replace(20, 4, "FFFF");
  std::string no_languages = usual;
  no_languages[0] = '\0';
  return {usual,    one_block.Bytes(), wide.Bytes(),        nine_slots.Bytes(),
          wrapping, no_languages,      usual.substr(0, 24), usual.substr(0, usual.size() - 5)};
}

std::vector<std::string> MsxFiles() {
  const std::string usual = test::MsxFile(1);
  return {usual, usual.substr(0, 2000), test::MsxFile(0), test::MsxFile(1, "0405"),
          test::MsxFile(1, "0999").substr(0, 200)};
}

std::vector<std::string> Sources() {
  const std::string section = " .SECT text\n DC.B 'ABCD'\nMNLING:\n DC.B \"EFGH\"\n";
  return {" DC.B 'AB''C'\r\n DC.B \"AB\"\"C\"\r\n",
          " .SDATA\n" + section,
          section + section,
          section + section + section,
          " ORG $6000\n DC.B 'A'\n ORG $7000\n DC.B '\"\n ORG $8000\n DC.B 'A'\n",
          " DC.B 'AB'\n DC.B 'A'\n",
          "; no text\n"};
}

std::vector<std::string> SRecords() {
  const std::string records =
      test::S2Line(0xFF8000, "0123456789ABCDEF") + "\r\n" + test::S2Line(0xFF8010, "abc") + "\r\n";
  return {records, "S1136000303132333435363738394142434445460B\r\n",
          CopyHeader("303431374142", "12") + "\r\n" + records + std::string(kLastCopyLine) + "\r\n",
          test::S2Line(0xFF9FF8, "0123456789ABCDEF") + "\n" +
              test::S2Line(0xFFBFF8, "0123456789ABCDEF") + "\nS9030000FC\n",
          "S2\r\nS214\r\nX\r\n"};
}

// Two files an input.
std::vector<std::string> FlashFiles() {
  const std::string first = test::S2Line(0xFF8000, "aaaaITA ccccdddd") + "\r\n";
  const std::string second = test::S2Line(0xFF8010, "ENG ffff") + "\r\n";
  const std::string other = test::S2Line(0xFF8000, "aaxaITA cccc") + "\n";
  const std::string nine_slots = test::S2Line(0xFF0000, "    MP0417AA    ") + "\n";
  const std::string copy = CopyHeader("303236374141", "E9") + "\r\n" + first + second +
                           std::string(kLastCopyLine) + "\r\n";
  const std::string between(1, '\0');
  std::vector<std::string> inputs = SRecords();
  inputs.insert(inputs.end(), {first + second + between + other, copy + between + first + second,
                               nine_slots + "\n\n" + between + first,
                               "S1051234ABCD3C\nS30600FFFFFF01FB\n" + between + "S9030000FC\n"});
  return inputs;
}

std::vector<std::string> Languages() {
  // A backslash and another character end each of the first two files.
  return {"Lingua=first\\n;--menu\r\n&File\r\n&Apri\r\n\\n;--menu\r\n&File\r\n&Open\r\n",
          "Lin\\nfirst\nline\n\\nfirst\n"};
}

std::vector<std::string> CsvTables() {
  const std::string header = "message,origin,text\r\n";
  std::string little_endian = "\xFF\xFE";
  std::string big_endian = "\xFE\xFF";
  for (const char c : header + "1,,\"x\"\r\n") {
    little_endian.append({c, '\0'});
    big_endian.append({'\0', c});
  }
  return {header + "0,,xþyþþz\r\n1,,new\r\n2,\"a\"\"b\",60°C\r\n",
          "\xEF\xBB\xBFmessage;origin;text\r\n0;;\"wxyz;WXYZ\"\r\n9;;x\r\n",
          "message\torigin\ttext\n1\t\tT\xE8\n1\t\tx\n",
          header + "1,,\"x\r\n2,,y\r\n",
          little_endian,
          big_endian};
}

std::vector<std::string> XliffTables() {
  const std::string start =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xliff version=\"1.2\" "
      "xmlns=\"urn:oasis:names:tc:xliff:document:1.2\"><file original=\"a\" "
      "source-language=\"it\" datatype=\"plaintext\"><body>";
  const std::string end = "</body></file></xliff>\n";
  const std::string placeholders = "<x id=\"1\" equiv-text=\"þ\"/>b<x id=\"2\" equiv-text=\"þþ\"/>";
  const std::string unit = "<trans-unit id=\"0\" resname=\"0\"><source>a" + placeholders +
                           "</source><target state=\"translated\">x" + placeholders +
                           "</target><note>n</note></trans-unit>";
  return {start + unit + end,
          start +
              "<group><trans-unit id=\"1\"><source/><target><mrk mtype=\"seg\">a &lt;&#x41F;"
              "<![CDATA[<b>]]></mrk></target></trans-unit></group>" +
              end,
          start +
              "<trans-unit id=\"3\"><source>a</source><target>b</target><context-group "
              "name=\"po-reference\"><context>1</context></context-group></trans-unit>" +
              end,
          "<!DOCTYPE xliff [<!ENTITY a \"b\">]><xliff version=\"1.2\">&a;</xliff>",
          start + unit + unit.substr(0, 60)};
}

// An undo file behind its first line, a byte 255, and the file beside it.
std::vector<std::string> UndoFiles() {
  const std::string before = MesFile().Bytes();
  std::string after = before;
  after.replace(50, 4, "new!");
  const std::string record = ComposeRecord(RecordOf(before, after + "grown"));
  const std::string file = "\xFF" + after.substr(0, 52) + before.substr(52);
  const std::string first_line = "Vendlingua undo file 1\n";
  return {record + file,
          record.substr(first_line.size(), record.size() - first_line.size() - 4) + file,
          record.substr(0, 30) + file, "\xFF" + before};
}

std::vector<std::string> Journals() {
  const std::string head = ComposeJournalHead({"/a/FILE.MES", 130, 0x12345678, 0, 1});
  const std::string entry = ComposeJournalEntry({2, DisplayText(), 2, 1});
  return {head + entry + entry, head + entry.substr(0, 20), head.substr(0, 15), kChoices};
}

std::vector<std::string> MarksFiles() {
  const KeptMarks marks = {{"ENGLISH", 12, "Caff\u00E8", {Mark::kNeedsWork, "too \"long\""}},
                           {"DEUTSCH", 0, "", {Mark::kDone, ""}}};
  return {MarksText(marks), MarksText({}), MarksText(marks).substr(0, 40), "[]",
          "{\"marks\":1e99}"};
}

std::vector<std::string> Settings() {
  return {"Lingua=italiano\r\n",
          "Lingua=fran\xE7"
          "ais\r\n",
          "\xEF\xBB\xBFLingua=\u0440\r\n", "Lingua"};
}

// An argument a line.
std::vector<std::string> CommandLines() {
  return {"info\nA.MES",
          "put\nA.MES\n--language\n1\n--message\n0\nabc",
          "check\nA.MES\n--json",
          "import\nA.ASM\n--output\nC.MES\n--name\nX",
          "apply\nA.MES\n--language\n1\nA.csv",
          "compile\nA.MES\n--languages\n1\n--output\nB.MHX\n--copy\nC.MSX",
          "verify\nA.MHX",
          "diff\nA.MES\nB.MES",
          "export\nA.MES\n--language\n1\n--output\nx.xliff",
          "new-language\nA.MES\n--name\nNEW",
          "sections\nA.MHX",
          "proof\nA.MES\n--output\np.html",
          "texts\nA.MSX\n--language\n1",
          "--help",
          "rename\nA.MES\n--language\n1\n--name\nN"};
}

std::vector<std::string> WithChoices(std::vector<std::string> files) {
  for (std::string& file : files) {
    file += kChoices;
  }
  return files;
}

void WriteCorpus(const fs::path& folder) {
  std::vector<std::string> both = MesFiles();
  both.push_back(MsxFiles().front());
  Write(folder / "mes_file", WithChoices(MesFiles()));
  Write(folder / "msx_file", WithChoices(MsxFiles()));
  Write(folder / "source_import", WithChoices(Sources()));
  Write(folder / "interface_language", Languages());
  Write(folder / "srecord_check", SRecords());
  Write(folder / "flash_file", FlashFiles());
  Write(folder / "section_files", SRecords());
  Write(folder / "flash_compiler", WithChoices(both));
  Write(folder / "csv_table", CsvTables());
  Write(folder / "xliff", XliffTables());
  Write(folder / "undo_file", UndoFiles());
  Write(folder / "journal", Journals());
  Write(folder / "marks", MarksFiles());
  Write(folder / "settings", Settings());
  Write(folder / "rename", WithChoices(MesFiles()));
  Write(folder / "command_line", CommandLines());
}

}  // namespace
}  // namespace vendlingua

int main(int argument_count, char** arguments) {
  if (argument_count != 2) {
    std::cerr << "usage: make_fuzz_corpus FOLDER\n";
    return 2;
  }
  vendlingua::WriteCorpus(arguments[1]);
  return 0;
}
