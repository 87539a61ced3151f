#include "core/formats/message_texts.h"

#include "core/formats/mes_file.h"
#include "core/formats/msx_file.h"

namespace vendlingua {

MessageTexts TextsOf(const MessageSet& set, int language) {
  if (language == kNewLanguage) {
    return MessageTexts(set.MessageCount());
  }
  if (set.IsMes()) {
    return ReadMesTexts(set, language);
  }
  if (language == 0) {
    return {BuiltInMessages().begin(), BuiltInMessages().end()};
  }
  return ReadMsxTexts(set, language);
}

}  // namespace vendlingua
