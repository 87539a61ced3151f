#include <benchmark/benchmark.h>

#include <filesystem>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "core/engine.h"
#include "core/formats/srecord.h"
#include "core/formats/text_lines.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

// Answers every question with the one path that was set for its purpose.
class BenchDialogs : public Dialogs {
 public:
  fs::path messages;
  fs::path flash_file;
  fs::path copy;

  MessageAnswer MessageBox(const MessageRequest& /*request*/) override {
    return MessageAnswer::kNo;
  }
  std::string InputBox(const InputRequest& /*request*/) override { return "BENCH"; }
  std::optional<fs::path> OpenFile(const FileRequest& /*request*/) override { return messages; }
  std::optional<fs::path> SaveFile(const FileRequest& request) override {
    return request.purpose == FilePurpose::kIdentifiedCopy ? copy : flash_file;
  }
  std::vector<ConflictAnswer> ResolveConflicts(const ConflictRequest& /*request*/) override {
    return {};
  }
  void LetPendingEventsRun() override {}
};

// A private copy of the nine-language sample, opened, with its first two languages chosen.
class OpenSample : public benchmark::Fixture {
 public:
  void SetUp(benchmark::State& /*state*/) override {
    folder_ = fs::temp_directory_path() / ("vendlingua-bench-" + std::to_string(Random()));
    fs::create_directory(folder_);
    dialogs_.messages = folder_ / "FW0417AB.MES";
    dialogs_.flash_file = folder_ / "FW0417AB.MHX";
    dialogs_.copy = folder_ / "MP0417AA.MSX";
    fs::copy_file(fs::path(VENDLINGUA_SAMPLES_FOLDER) / "FW0417AB.MES", dialogs_.messages);
    engine_ = std::make_unique<Engine>(dialogs_);
    engine_->opener.Open();
    engine_->languages.ChooseOrigin(0);
    engine_->languages.ChooseDestination(2);
  }

  void TearDown(benchmark::State& /*state*/) override {
    engine_.reset();
    fs::remove_all(folder_);
  }

 protected:
  void SetAllTexts(DisplayCode code) {
    MessageSet& set = engine_->workspace.set;
    std::vector<NewText> texts;
    for (std::size_t message = 0; message <= set.LastMsg; ++message) {
      texts.push_back({message, DisplayCodes(set.Width(), code)});
    }
    set.SetTexts(texts);
  }

  static unsigned Random() { return std::random_device()(); }

  fs::path folder_;
  BenchDialogs dialogs_;
  std::unique_ptr<Engine> engine_;
};

BENCHMARK_F(OpenSample, LoadSet)(benchmark::State& state) {
  for (auto _ : state) {
    engine_->opener.Open();
  }
}

BENCHMARK_F(OpenSample, SwitchLanguage)(benchmark::State& state) {
  int language = 2;
  for (auto _ : state) {
    language = 5 - language;
    engine_->languages.ChooseDestination(language);
  }
}

BENCHMARK_F(OpenSample, SaveLanguage)(benchmark::State& state) {
  for (auto _ : state) {
    engine_->writer.Save();
  }
}

// Every message of the language is another one each time.
BENCHMARK_DEFINE_F(OpenSample, SaveChangedLanguage)(benchmark::State& state) {
  DisplayCode code = 'A';
  for (auto _ : state) {
    state.PauseTiming();
    code = code == 'A' ? 'B' : 'A';
    SetAllTexts(code);
    state.ResumeTiming();
    engine_->writer.Save();
  }
}
BENCHMARK_REGISTER_F(OpenSample, SaveChangedLanguage)->UseRealTime()->Unit(benchmark::kMillisecond);

BENCHMARK_F(OpenSample, CompileNineLanguages)(benchmark::State& state) {
  for (std::size_t language = 1; language <= 9; ++language) {
    engine_->compiler_state.ticked.at(language) = true;
  }
  for (auto _ : state) {
    engine_->compiler.Compile();
  }
}

std::vector<std::uint8_t> RandomImage(std::size_t size) {
  std::vector<std::uint8_t> image(size);
  std::minstd_rand random(1);
  for (std::uint8_t& byte : image) {
    byte = static_cast<std::uint8_t>(random());
  }
  return image;
}

constexpr std::size_t kAddressDigits = 6;

// The argument is the size of the image in MiB.
std::size_t ImageSize(const benchmark::State& state) {
  return static_cast<std::size_t>(state.range(0)) << 20U;
}

void WriteSRecords(benchmark::State& state) {
  const auto image = RandomImage(ImageSize(state));
  for (auto _ : state) {
    benchmark::DoNotOptimize(FormatSRecords(image, 0, SRecordType::kS2, kAddressDigits));
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(image.size()));
}
BENCHMARK(WriteSRecords)->RangeMultiplier(4)->Range(1, 16)->Unit(benchmark::kMillisecond);

void ReadSRecords(benchmark::State& state) {
  const auto image = RandomImage(ImageSize(state));
  const std::string records = FormatSRecords(image, 0, SRecordType::kS2, kAddressDigits);
  SRecord record;
  for (auto _ : state) {
    TextLines lines(records);
    while (const auto line = lines.Next()) {
      ParseSRecord(line->text, record);
      benchmark::DoNotOptimize(record.ChecksumIsRight());
    }
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(image.size()));
}
BENCHMARK(ReadSRecords)->RangeMultiplier(4)->Range(1, 16)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vendlingua
