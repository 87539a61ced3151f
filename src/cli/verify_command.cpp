#include "cli/commands.h"
#include "core/formats/file_check.h"
#include "core/platform/errors.h"

namespace vendlingua::cli {
namespace {

Findings Check(const std::string& file) {
  try {
    return CheckFile(file);
  } catch (const FileError& error) {
    return {error.reason()};
  }
}

}  // namespace

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

}  // namespace vendlingua::cli
