#include "cli/number_option.h"

#include <string>

#include "msgfiles/answers.h"

namespace vendlingua::cli {

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
