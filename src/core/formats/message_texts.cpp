#include "core/formats/message_texts.h"

#include <algorithm>

#include "core/formats/msx_file.h"
#include "core/presentation/menu_state.h"

namespace vendlingua {

void ReadLanguageTexts(const MessageSet& set, int language, MessageTexts& texts) {
  MessageTexts read = texts;
  if (language == kNewLanguage) {
    std::fill_n(read.begin(), set.MessageCount(), DisplayText());
  } else if (set.IsMes()) {
    ReadMesTexts(set, language, read);
  } else if (set.IsMsx()) {
    ReadMsxTexts(set, language, read);
  }
  texts = read;
}

}  // namespace vendlingua
