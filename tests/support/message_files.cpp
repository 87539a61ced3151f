#include "support/message_files.h"

#include <fmt/format.h>

#include <numeric>
#include <span>

namespace vendlingua::test {
namespace {

std::string Digits(std::size_t value, int width) { return fmt::format("{:0{}X}", value, width); }

std::string Padded(std::string text, std::size_t width) {
  text.resize(width, ' ');
  return text;
}

}  // namespace

std::string MesFile::Message(std::size_t block, std::size_t message) const {
  std::string text(width, static_cast<char>('0' + message % 10));
  text.front() = static_cast<char>('0' + block % 10);
  return text;
}

std::string MesFile::Bytes() const {
  std::string bytes;
  bytes += static_cast<char>(lang_count);
  bytes += static_cast<char>(width - 1);
  bytes += flags + header_count + Digits(last_msg, 4) + mem_start +
           Digits(lang_count * stride * width, 4);
  for (std::size_t block = 0; block < names.size(); ++block) {
    bytes += Padded(names[block], 20);
    for (std::size_t message = 0; message <= stride; ++message) {
      bytes += message <= last_msg ? Message(block, message) : std::string(width, '.');
    }
  }
  return bytes;
}

std::string MsxMessage(std::size_t language, std::size_t message) {
  if (message == 169) {
    return "   LANGUAGE " + std::to_string(language) + "   ";
  }
  return Padded("L" + std::to_string(language) + " M" + std::to_string(message), 16);
}

std::string S2Line(std::size_t address, std::string_view data) {
  std::size_t sum = data.size() + 4 + (address >> 16) + (address >> 8) + address;
  for (const char byte : data) {
    sum += static_cast<unsigned char>(byte);
  }
  return "S2" + Digits(data.size() + 4, 2) + Digits(address, 6) + HexOf(data) +
         Digits(~sum & 0xFF, 2);
}

std::string Lettered(std::string mes_content) {
  constexpr std::size_t kHeaderBytes = 24;
  for (std::size_t i = kHeaderBytes; i < mes_content.size(); ++i) {
    char& byte = mes_content[i];
    byte = byte >= '0' && byte <= '9' ? static_cast<char>(byte - '0' + 'A') : byte;
  }
  return mes_content;
}

std::string MsxFile(std::size_t languages, std::string_view model) {
  std::string file = "S01300004D50" + HexOf(model) + "41412020202020202020" + "00\r\n";
  for (std::size_t language = 1; language <= languages; ++language) {
    for (std::size_t message = 0; message < 455; ++message) {
      const std::size_t address = 0xFF0000 + ((language - 1) * 455 + message) * 16;
      file += S2Line(address, MsxMessage(language, message)) + "\r\n";
    }
  }
  return file;
}

std::string HexOf(std::string_view bytes) {
  std::string hex;
  for (const char byte : bytes) {
    hex += Digits(static_cast<unsigned char>(byte), 2);
  }
  return hex;
}

DisplayCodes AllCodes() {
  DisplayCodes codes(256);
  std::iota(codes.begin(), codes.end(), DisplayCode{0});
  return codes;
}

std::string SourceLine(std::string_view text) { return " DC.B '" + std::string(text) + "'\r\n"; }

std::string SourceLines(std::size_t count, std::string_view text) {
  std::string lines;
  for (std::size_t i = 0; i < count; ++i) {
    lines += SourceLine(text);
  }
  return lines;
}

DisplayCodes Codes(std::string_view bytes) { return {bytes.begin(), bytes.end()}; }

DisplayText TextFrom(std::string_view bytes) { return DisplayText(Codes(bytes)); }

std::string Text(std::span<const DisplayCode> codes) { return {codes.begin(), codes.end()}; }

}  // namespace vendlingua::test
