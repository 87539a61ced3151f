#include "cli/options.h"

#include <map>

#include "core/operations/answers.h"

namespace vendlingua::cli {

void AddFile(CLI::App& command, std::string& file) {
  command.add_option("FILE", file, "message file (.MES or .MSX)")->required();
}

CLI::Option* AddLanguage(CLI::App& command, std::string& language, const std::string& description) {
  return command.add_option("--language", language, description)->required()->type_name("LANGUAGE");
}

void AddOrigin(CLI::App& command, std::string& origin) {
  command
      .add_option("--origin", origin,
                  "number or name of the language to check against; if not given, 1 in a .MES "
                  "file and 0, the built-in table, in a .MSX file")
      ->type_name("LANGUAGE");
}

void AddLanguages(CLI::App& command, const std::string& option,
                  std::vector<std::string>& languages) {
  command
      .add_option(option, languages, "numbers or names of the languages, all but 0 if not given")
      ->type_name("LANGUAGE")
      ->delimiter(',')
      ->allow_extra_args(false);
}

void AddDisplay(CLI::App& command, Session& session) {
  command
      .add_option("--display", session.display,
                  "display whose characters texts are in, instead of the file's")
      ->transform(DisplayName());
}

CLI::Validator DisplayName() {
  static const std::map<std::string, std::size_t> kDisplays = {
      {"normal", 0}, {"cyrillic", 1}, {"katakana", 2}, {"hebrew", 3}};
  return CLI::CheckedTransformer(kDisplays, CLI::ignore_case)
      .description("normal|cyrillic|katakana|hebrew");
}

CLI::Validator NumberAnswer() {
  return {[](std::string& answer) {
            if (answer.starts_with("0x") || answer.starts_with("0X")) {
              answer.replace(0, 2, "&H");
            }
            return WholeNumber(answer) ? std::string() : "\"" + answer + "\" is not a number";
          },
          "NUMBER"};
}

}  // namespace vendlingua::cli
