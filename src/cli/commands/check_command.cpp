#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "cli/characters.h"
#include "cli/checked_file.h"
#include "cli/commands.h"
#include "cli/options.h"
#include "core/checks/rules.h"
#include "core/platform/errors.h"

namespace vendlingua::cli {
namespace {

// A damaged file has a finding in every message; nobody reads that many.
constexpr std::size_t kMostFindings = 10'000;

struct CheckOptions {
  std::string file;
  std::vector<std::string> languages;
  std::string origin;
  std::vector<std::string> only;
  std::vector<std::string> ignored;
};

std::vector<Finding> FindingsIn(const CheckedFile& file, const std::vector<int>& languages,
                                const Rules& rules) {
  std::vector<Finding> findings;
  for (const int language : languages) {
    const std::vector<Finding> found = file.CheckOf(language, rules).Findings();
    findings.insert(findings.end(), found.begin(), found.end());
    if (findings.size() >= kMostFindings) {
      findings.resize(kMostFindings);
      break;
    }
  }
  return findings;
}

Json AsJson(const Session& session, const std::vector<Finding>& findings) {
  const Alphabet& alphabet = session.alphabet();
  Json list = Json::array();
  for (const Finding& finding : findings) {
    list.push_back({{"language", finding.language},
                    {"message", finding.message},
                    {"rule", finding.rule},
                    {"severity", NameOf(finding.severity)},
                    {"origin", alphabet.TextOf(finding.origin)},
                    {"text", alphabet.TextOf(finding.text)}});
  }
  Json counts = Json::object();
  for (const Severity severity : kSeverities) {
    counts[std::string(NameOf(severity))] = CountOf(findings, severity);
  }
  return {{"findings", list}, {"counts", counts}};
}

std::string Counted(std::size_t count, std::string_view what) {
  return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

// "1 error, 2 warnings, 3 notes".
std::string Summary(const std::vector<Finding>& findings) {
  std::string summary;
  for (const Severity severity : kSeverities) {
    summary +=
        (summary.empty() ? "" : ", ") + Counted(CountOf(findings, severity), NameOf(severity));
  }
  return summary;
}

std::string NumberedName(const Session& session, int language) {
  return fmt::format("{} {}", language, session.LanguageName(language));
}

// The language and the rule of each finding in columns as wide as the longest.
std::string AsLines(const Session& session, const std::vector<Finding>& findings) {
  std::size_t name_width = 0;
  std::size_t rule_width = 0;
  for (const Finding& finding : findings) {
    name_width = std::max(name_width, Characters(NumberedName(session, finding.language)));
    rule_width = std::max(rule_width, finding.rule.size());
  }
  const Alphabet& alphabet = session.alphabet();
  std::string lines;
  for (const Finding& finding : findings) {
    lines += fmt::format("{:{}}  {:>3}  {:7}  {:{}}  \"{}\"  \"{}\"\n",
                         NumberedName(session, finding.language), name_width, finding.message,
                         NameOf(finding.severity), finding.rule, rule_width,
                         alphabet.TextOf(finding.origin), alphabet.TextOf(finding.text));
  }
  return lines;
}

void RunCheck(Session& session, const CheckOptions& options) {
  const Rules rules = ChosenRules(options.only, options.ignored);
  if (rules.empty()) {
    throw WrongUsage("--ignore leaves no rule to check");
  }
  session.Open(options.file);
  const CheckedFile file(session, options.origin);
  const std::vector<int> languages = file.Chosen(session, options.languages);
  const std::vector<Finding> findings = FindingsIn(file, languages, rules);
  session.Print(AsJson(session, findings),
                fmt::format("{}{}: {}\n", AsLines(session, findings),
                            Counted(languages.size(), "language"), Summary(findings)));
  if (findings.size() == kMostFindings) {
    throw CommandFailed(fmt::format("{}: given up after {} findings", options.file, kMostFindings));
  }
  if (NeedsWork(findings)) {
    throw CommandFailed(options.file + ": " + Summary(findings));
  }
}

std::vector<std::string> RuleNames() {
  std::vector<std::string> names;
  for (const Rule* rule : AllRules()) {
    names.emplace_back(rule->name());
  }
  return names;
}

void AddRules(CLI::App& command, const std::string& option, std::vector<std::string>& rules,
              const std::string& description) {
  command.add_option(option, rules, description)
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(CLI::IsMember(RuleNames()).description("RULE"));
}

}  // namespace

void AddCheck(CLI::App& app, Session& session) {
  const auto options = std::make_shared<CheckOptions>();
  CLI::App* command = app.add_subcommand(
      "check", "Say what is wrong with translations; fails on an error or a warning.");
  command->footer(
      fmt::format("Rules: {}.\n"
                  "Example: vendlingua-cli check FW0417AB.MES --language english,5 "
                  "--ignore same-as-origin",
                  fmt::join(RuleNames(), ", ")));
  AddFile(*command, options->file);
  AddLanguages(*command, "--language", options->languages);
  AddOrigin(*command, options->origin);
  AddRules(*command, "--only", options->only, "rules to check, all if not given");
  AddRules(*command, "--ignore", options->ignored, "rules not to check");
  AddDisplay(*command, session);
  command->callback([&session, options] { RunCheck(session, *options); });
}

}  // namespace vendlingua::cli
