#ifndef VENDLINGUA_TESTS_GUI_SUPPORT_TRANSLATORS_DAY_H_
#define VENDLINGUA_TESTS_GUI_SUPPORT_TRANSLATORS_DAY_H_

#include <cstddef>
#include <filesystem>
#include <string>

#include "core/marks/marks_file.h"
#include "gui/support/desk_test.h"

namespace vendlingua::test {

/// All that a translator does in a day, from opening a file to the flash file, in the sample file
/// from Italian into English, where three messages wait for their translation.
class TranslatorsDay : public DeskTest {
 protected:
  static constexpr const char* kFile = "FW0417AB.MES";
  static constexpr std::size_t kDiagnostics = 2;  ///< "Diagnosi", once in the file
  static constexpr std::size_t kFullTest = 9;     ///< " Prova completa ", centred
  static constexpr std::size_t kWaterTest = 10;
  static constexpr int kBoardLanguages = 9;

  template <typename Control>
  Control& Part(const char* name) {
    return desk_->program.GetInDesk<Control>(name);
  }
  FrmMes& Window() { return desk_->program.window(); }
  std::size_t Current() { return desk_->program.set().current_message; }

  /// Writes the file into the folder where the program looks first. What was there before is
  /// suggested out of the samples.
  std::filesystem::path PrepareFile() {
    const std::filesystem::path sample = std::filesystem::path(VENDLINGUA_SAMPLES_FOLDER) / kFile;
    std::filesystem::create_directory(desk_->folder / "bin" / "samples");
    std::filesystem::copy_file(sample, desk_->folder / "bin" / "samples" / kFile);
    std::string content = Slurp(sample);
    for (const char* text : {"  Diagnostics   ", "   Full test    ", "   Water test   "}) {
      const std::size_t place = content.find(text);
      content.replace(place, 16, 16, ' ');
    }
    return desk_->folder.Write(std::string("bin/") + kFile, content);
  }

  /// `full_test` is what the translator made of that message.
  void CheckTheDaysWork(const std::filesystem::path& file, const std::string& full_test) {
    const std::string content = Slurp(file);
    QVERIFY(content.find("  Diagnostics   ") != std::string::npos);
    QVERIFY(content.find("   Water test   ") != std::string::npos);
    QVERIFY2(content.find(full_test) != std::string::npos, desk_->Stored(kFullTest).c_str());
    QCOMPARE(ReadMarks(file).value().size(), std::size_t{1});
    const std::string flash_file = Slurp(file.parent_path() / "FW0417AB.MHX");
    QVERIFY(flash_file.find(HexOf("   Water test   ")) != std::string::npos);
  }
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_GUI_SUPPORT_TRANSLATORS_DAY_H_
