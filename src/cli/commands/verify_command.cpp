#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/flash/companion_check.h"
#include "core/formats/file_check.h"
#include "core/platform/errors.h"

namespace vendlingua::cli {
namespace {

Findings Check(const std::string& file) {
  try {
    Findings findings = CheckFile(file);
    if (findings.empty() && IsFlashFile(file)) {
      findings = CheckCompanions(file);
    }
    return findings;
  } catch (const FileError& error) {
    return {error.reason()};
  }
}

void RunVerify(Session& session, const std::vector<std::string>& files) {
  Json report = Json::array();
  std::string text;
  std::string unsound;
  for (const std::string& file : files) {
    const Findings findings = Check(file);
    report.push_back({{"file", file}, {"findings", findings}});
    for (const std::string& finding : findings) {
      text.append(file).append(": ").append(finding).append("\n");
    }
    if (findings.empty()) {
      text += file + ": sound\n";
    } else {
      unsound += (unsound.empty() ? "" : ", ") + file;
    }
  }
  session.Print({{"files", report}}, text);
  if (!unsound.empty()) {
    throw CommandFailed("not sound: " + unsound);
  }
}

}  // namespace

void AddVerify(CLI::App& app, Session& session) {
  const auto files = std::make_shared<std::vector<std::string>>();
  CLI::App* command = app.add_subcommand("verify", "Say whether files are sound.");
  command->footer(
      "Files of S-records: syntax, count, checksum, gaps and overlaps, line by line.\n"
      ".MES files: header, sizes, block count, names, blocks that were never written whole.\n"
      "Flash files: whether the section files, the copy and the message file beside them belong to "
      "them.\n"
      "Example: vendlingua-cli verify FW0417AB.MES FW0417AB.MHX MP0417AA.MSX");
  command->add_option("FILE", *files, "files to check")->required();
  command->callback([&session, files] { RunVerify(session, *files); });
}

}  // namespace vendlingua::cli
