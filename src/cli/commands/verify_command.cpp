#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <span>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/flash/companion_check.h"
#include "core/formats/file_check.h"
#include "core/platform/errors.h"
#include "core/platform/path_of.h"

namespace vendlingua::cli {
namespace {

Findings Check(const std::filesystem::path& file) {
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

// A file of something else has a finding in every line; nobody reads that many.
std::span<const std::string> Listed(const Findings& findings) {
  constexpr std::size_t kMostFindings = 20;
  return std::span(findings).first(std::min(findings.size(), kMostFindings));
}

Json AsJson(const std::string& file, const Findings& findings) {
  const auto listed = Listed(findings);
  Json json = {{"file", file},
               {"sound", findings.empty()},
               {"findings", Findings(listed.begin(), listed.end())}};
  if (listed.size() < findings.size()) {
    json["unlisted"] = findings.size() - listed.size();
  }
  return json;
}

std::string AsLines(const std::string& file, const Findings& findings) {
  if (findings.empty()) {
    return file + ": sound\n";
  }
  std::string lines;
  const auto listed = Listed(findings);
  for (const std::string& finding : listed) {
    lines.append(file).append(": ").append(finding).append("\n");
  }
  if (listed.size() < findings.size()) {
    lines += fmt::format("{}: and {} more\n", file, findings.size() - listed.size());
  }
  return lines;
}

void RunVerify(Session& session, const std::vector<std::string>& files) {
  Json report = Json::array();
  std::string text;
  std::string unsound;
  for (const std::string& file : files) {
    const Findings findings = Check(PathOf(file));
    report.push_back(AsJson(file, findings));
    text += AsLines(file, findings);
    if (!findings.empty()) {
      unsound += (unsound.empty() ? "" : "\n") + file + ": is not sound";
    }
  }
  session.Print({{"files", report}}, text);
  if (!unsound.empty()) {
    throw CommandFailed(unsound);
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
      "Of each file the first 20 findings are told, the others counted.\n"
      "Example: vendlingua-cli verify FW0417AB.MES FW0417AB.MHX MP0417AA.MSX");
  command->add_option("FILE", *files, "files to check")->required();
  command->callback([&session, files] { RunVerify(session, *files); });
}

}  // namespace vendlingua::cli
