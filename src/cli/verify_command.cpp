#include "cli/commands.h"
#include "msgfiles/file_check.h"
#include "platform/errors.h"

namespace vendlingua::cli {
namespace {

Findings Check(const std::string& file) {
  try {
    return CheckFile(file);
  } catch (const FileError& error) {
    return {error.what()};
  }
}

}  // namespace

void RunVerify(Session& session, const std::vector<std::string>& files) {
  Json report = Json::array();
  std::string text;
  std::size_t unsound = 0;
  for (const std::string& file : files) {
    const Findings findings = Check(file);
    report.push_back({{"file", file}, {"findings", findings}});
    for (const std::string& finding : findings) {
      text.append(file).append(": ").append(finding).append("\n");
    }
    if (findings.empty()) {
      text += file + ": sound\n";
    } else {
      ++unsound;
    }
  }
  session.Print({{"files", report}}, text);
  if (unsound != 0) {
    throw CommandFailed(std::to_string(unsound) + " of " + std::to_string(files.size()) +
                        " files are not sound");
  }
}

}  // namespace vendlingua::cli
