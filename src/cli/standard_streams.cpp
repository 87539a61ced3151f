#include "cli/standard_streams.h"

#include <algorithm>
#include <array>
#include <iostream>

#include "cli/refusal.h"
#include "core/platform/files.h"
#include "core/platform/path_of.h"
#include "core/texts/valid_utf8.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#endif

namespace vendlingua::cli {
namespace {

std::string ReadStandardInput() {
  std::string content;
  std::array<char, 64U << 10U> piece{};
  while (std::cin.read(piece.data(), piece.size()) || std::cin.gcount() > 0) {
    content.append(piece.data(), static_cast<std::size_t>(std::cin.gcount()));
    if (content.size() > kMessageFileLimit) {
      throw CommandFailed("standard input: holds more than " + std::to_string(kMessageFileLimit) +
                          " bytes");
    }
  }
  return content;
}

}  // namespace

#ifdef _WIN32

StreamsOfBytes::StreamsOfBytes() : console_code_page_(GetConsoleOutputCP()) {
  for (std::FILE* stream : {stdin, stdout, stderr}) {
    _setmode(_fileno(stream), _O_BINARY);
  }
  SetConsoleOutputCP(CP_UTF8);
}

StreamsOfBytes::~StreamsOfBytes() { SetConsoleOutputCP(console_code_page_); }

#else

StreamsOfBytes::StreamsOfBytes() = default;
StreamsOfBytes::~StreamsOfBytes() = default;

#endif

std::string NameOf(const std::string& file) {
  return file == kStandardStream ? "standard input" : file;
}

std::string ReadInput(const std::string& file) {
  return file == kStandardStream ? ReadStandardInput() : ReadFile(PathOf(file));
}

void WriteOutput(const std::string& file, std::string_view content) {
  if (file != kStandardStream) {
    WriteFile(PathOf(file), content);
  } else if (!(std::cout << content << std::flush)) {
    throw CommandFailed("standard output: cannot be written");
  }
}

void TellOnStderr(std::string_view lines) {
  constexpr std::string_view kLineEnds = "\r\n";
  while (!lines.empty()) {
    const std::string_view line = lines.substr(0, lines.find_first_of(kLineEnds));
    if (!line.empty()) {
      std::cerr << "vendlingua-cli: " << ValidUtf8(line) << '\n';
    }
    lines.remove_prefix(std::min(line.size() + 1, lines.size()));
  }
}

}  // namespace vendlingua::cli
