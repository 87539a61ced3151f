#include <fmt/format.h>

#include <memory>
#include <string>
#include <vector>

#include "cli/checked_file.h"
#include "cli/commands.h"
#include "cli/options.h"
#include "core/desk/proof_of.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "core/platform/path_of.h"
#include "core/proof/glass_picture.h"
#include "core/proof/proof_sheet.h"

namespace vendlingua::cli {
namespace {

struct ProofOptions {
  std::string file;
  std::vector<std::string> languages;
  std::string origin;
  std::optional<std::size_t> picture;  ///< the message to draw instead of a sheet
  std::string output;
};

std::string InProofWords(const Finding& finding) {
  return fmt::format("{}: {}", NameOf(finding.severity), finding.rule);
}

std::string Sheet(const Session& session, const CheckedFile& file,
                  const std::vector<int>& languages) {
  ProofSheet sheet{PathText(session.set().CurrentFileName.filename()),
                   session.LanguageName(file.basis().origin_language()),
                   {}};
  for (const int language : languages) {
    sheet.languages.push_back(ProofOf(file.basis(), file.CheckOf(language),
                                      session.LanguageName(language), file.TextsOf(language),
                                      InProofWords));
  }
  return FormatProofSheet(sheet, session.alphabet());
}

// The message in its place on the display, with the one that stands above or below it.
std::string Picture(const Session& session, const CheckedFile& file, std::size_t message,
                    int language) {
  if (message >= file.basis().MessageCount()) {
    throw CommandFailed(fmt::format("{}: has no message {}, they run from 0 to {}",
                                    PathText(session.set().CurrentFileName), message,
                                    session.set().LastMsg));
  }
  std::vector<std::vector<GlassCell>> rows;
  const std::size_t first = message - message % kGlassRows;
  for (std::size_t row = first; row < first + kGlassRows; ++row) {
    if (row < file.basis().MessageCount()) {
      rows.push_back(GlassCells(ProofCells(file.basis(), row, file.TextsOf(language).at(row))));
    }
  }
  return GlassPicture(rows, session.alphabet());
}

void RunProof(Session& session, const ProofOptions& options) {
  if (options.picture && options.languages.size() != 1) {
    throw WrongUsage("--png draws a message of one language; give it with --languages");
  }
  if (options.picture && !options.origin.empty()) {
    throw WrongUsage("--png draws no origin; leave --origin out");
  }
  session.Open(options.file);
  RefuseToOverwrite(PathOf(options.file), PathOf(options.output));
  const CheckedFile file(session, options.origin);
  const std::vector<int> languages = file.Chosen(session, options.languages);
  WriteFile(PathOf(options.output),
            options.picture ? Picture(session, file, *options.picture, languages.front())
                            : Sheet(session, file, languages));
  session.Print({{"written", {options.output}}}, options.output + "\n");
}

}  // namespace

void AddProof(CLI::App& app, Session& session) {
  const auto options = std::make_shared<ProofOptions>();
  CLI::App* command = app.add_subcommand(
      "proof", "Write a sheet that a native speaker reads and signs, as one HTML file.");
  command->footer(
      "It shows every message as the display draws it beside its origin, and prints on A4.\n"
      "Example: vendlingua-cli proof FW0417AB.MES --languages english,5 --output proof.html");
  AddFile(*command, options->file);
  AddLanguages(*command, "--languages", options->languages);
  AddOrigin(*command, options->origin);
  command->add_option("--png", options->picture,
                      "draw this message of one language as a PNG picture instead");
  command->add_option("--output", options->output, "file to write")->required();
  AddDisplay(*command, session);
  command->callback([&session, options] { RunProof(session, *options); });
}

}  // namespace vendlingua::cli
