#include <algorithm>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "core/platform/files.h"
#include "fuzz_support.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using fuzz::Require;

// What the streams of the program got, while one of these lives.
class CapturedStreams {
 public:
  CapturedStreams()
      : out_(std::cout.rdbuf(text_.rdbuf())), error_(std::cerr.rdbuf(text_.rdbuf())) {}
  ~CapturedStreams() {
    std::cout.rdbuf(out_);
    std::cerr.rdbuf(error_);
  }
  CapturedStreams(const CapturedStreams&) = delete;
  CapturedStreams& operator=(const CapturedStreams&) = delete;

  std::string Text() const { return text_.str(); }

 private:
  std::ostringstream text_;
  std::streambuf* out_;
  std::streambuf* error_;
};

// The files that a command line may name. Everything else that it names lies in their folder, too.
void MakeFiles() {
  fs::current_path(fuzz::EmptyFolder());
  WriteFile("A.MES", test::MesFile().Bytes());
  WriteFile("B.MES", test::MesFile{.lang_count = 3}.Bytes());
  WriteFile("A.MSX", test::MsxFile(1).substr(0, 4'000));
  WriteFile("A.ASM", " .SECT text\n DC.B 'ABCD'\n DC.B 'EFGH'\n");
  WriteFile("A.MHX", test::S2Line(0xFF8000, "0123456789ABCDEF") + "\r\n");
  WriteFile("A.csv", "message,origin,text\r\n0,,new\r\n");
}

// An argument a line; none leads out of the folder, or waits for somebody to type.
std::vector<std::string> ArgumentsOf(const std::string& lines) {
  std::vector<std::string> arguments = {"vendlingua-cli"};
  std::istringstream stream(lines);
  for (std::string line; std::getline(stream, line);) {
    std::erase_if(line, [](char c) { return c == '/' || c == '\0'; });
    arguments.push_back(line == "-" || line == ".." ? "A.MES" : line);
  }
  return arguments;
}

}  // namespace

// A command line is done, refused or wrong, and says so.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  MakeFiles();
  const std::vector<std::string> arguments = ArgumentsOf(std::string(bytes, bytes + size));
  std::vector<const char*> pointers;
  std::transform(arguments.begin(), arguments.end(), std::back_inserter(pointers),
                 [](const std::string& argument) { return argument.c_str(); });
  const CapturedStreams streams;
  const auto session = std::make_unique<cli::Session>();
  const cli::ExitStatus status =
      cli::RunCommandLine(*session, static_cast<int>(pointers.size()), pointers.data());
  Require(status == cli::ExitStatus::kDone || !streams.Text().empty(),
          "what is refused is explained");
  return 0;
}

}  // namespace vendlingua
