#include "manual/man_page.h"

#include <fmt/format.h>
#include <utf8.h>

#include <string_view>

namespace vendlingua::manual {
namespace {

constexpr std::string_view kExitStatus = R"(.SH EXIT STATUS
.TP
.B 0
Done.
.TP
.B 1
Refused or failed; the reason is on standard error.
The files are as they were before.
.TP
.B 2
Wrong usage.
)";

// A text within a line of the page. What roff would take for its own goes by its name.
std::string Escaped(const std::string& text) {
  std::string escaped;
  for (auto rest = text.begin(); rest != text.end();) {
    const auto character = utf8::next(rest, text.end());
    if (character == U'\\') {
      escaped += "\\e";
    } else if (character == U'-') {
      escaped += "\\-";
    } else if (character == U'\'') {
      escaped += "\\(aq";
    } else if (character < 0x80) {
      escaped += static_cast<char>(character);
    } else {
      escaped += fmt::format("\\[u{:04X}]", static_cast<unsigned>(character));
    }
  }
  return escaped;
}

std::string Bold(const std::string& text) { return "\\fB" + Escaped(text) + "\\fR"; }

std::string Italic(const std::string& text) { return "\\fI" + Escaped(text) + "\\fR"; }

// A line of running text; a full stop at its beginning would make it a request. Lines that begin
// with a blank stand by themselves.
std::string TextLine(const std::string& text) {
  return (text.starts_with('.') ? "\\&" : "") + Escaped(text) + "\n";
}

std::string ValueOf(const Argument& argument) {
  if (argument.choices.empty()) {
    return Italic(argument.value);
  }
  return fmt::format("{}", fmt::join(argument.choices, "|"));
}

std::string OptionName(const Argument& option) {
  std::string names;
  for (const std::string& name : option.names) {
    names += (names.empty() ? "" : ", ") + Bold(name);
  }
  return option.value.empty() ? names : names + " " + ValueOf(option);
}

std::string PlaceName(const Argument& place) {
  return Italic(place.value) + (place.repeatable ? " ..." : "");
}

std::string Entry(const std::string& name, const Argument& argument) {
  return ".TP\n" + name + "\n" + TextLine(argument.description);
}

// What has to be typed comes first; the rest is in the list below.
std::string SynopsisOf(const std::string& program, const Command& command) {
  std::string synopsis = Bold(program + " " + command.name);
  for (const Argument& place : command.places) {
    synopsis += " " + PlaceName(place);
  }
  bool optional = false;
  for (const Argument& option : command.options) {
    if (option.required) {
      synopsis += " " + OptionName(option);
    }
    optional = optional || !option.required;
  }
  return synopsis + (optional ? " [" + Italic("options") + "]" : "") + "\n";
}

std::string Examples(const Command& command) {
  std::string examples;
  for (const std::string& example : command.examples) {
    examples += ".PP\n.RS\n.EX\n" + TextLine(example) + ".EE\n.RE\n";
  }
  return examples;
}

std::string SectionOf(const std::string& program, const Command& command) {
  std::string section = ".SS " + command.name + "\n" + SynopsisOf(program, command);
  section += ".PP\n" + TextLine(command.description);
  for (const std::string& remark : command.remarks) {
    section += TextLine(remark);
  }
  for (const Argument& place : command.places) {
    section += Entry(PlaceName(place), place);
  }
  for (const Argument& option : command.options) {
    section += Entry(OptionName(option), option);
  }
  return section + Examples(command);
}

}  // namespace

std::string ManPage(const Grammar& grammar, const std::string& version, const std::string& date) {
  const Command& program = grammar.program;
  std::string page = fmt::format(
      ".TH VENDLINGUA\\-CLI 1 {} \"Vendlingua {}\" \"User Commands\"\n"
      ".SH NAME\n{} \\- edit and compile display messages of vending machines\n"
      ".SH SYNOPSIS\n{} {} [{}] [{}]\n"
      ".SH DESCRIPTION\n{}",
      date, version, Escaped(program.name), Bold(program.name), Italic("command"),
      Italic("arguments"), Italic("options"), TextLine(program.description));
  page += ".SH OPTIONS\nThese may stand before or behind the command.\n";
  for (const Argument& option : program.options) {
    page += Entry(OptionName(option), option);
  }
  page += ".SH COMMANDS\n";
  for (const Command& command : grammar.commands) {
    page += SectionOf(program.name, command);
  }
  page += kExitStatus;
  return page + ".SH SEE ALSO\n.BR vendlingua (1)\n";
}

}  // namespace vendlingua::manual
