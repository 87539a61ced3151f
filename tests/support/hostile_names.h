#ifndef VENDLINGUA_TESTS_SUPPORT_HOSTILE_NAMES_H_
#define VENDLINGUA_TESTS_SUPPORT_HOSTILE_NAMES_H_

#include <string>
#include <vector>

namespace vendlingua::test {

// Turns the direction of writing, and goes on outside the first 65,536 characters.
inline const std::string kTurned = std::string{'\xE2', '\x80', '\xAE'} + "gnl.\xF0\x9F\x98\x80";

/// Names of folders that a file system takes and that programs stumble over.
inline std::vector<std::string> HostileNames() {
  return {
      "x\xFF\xFE y",             // in no encoding
      "caff\xE8",                // in Windows-1252, from an old disk
      "\xED\xA0\x80 \xC0\xAF",   // half of a surrogate pair, an overlong separator
      "line\nbreak\r\ttab",      //
      "'quotes\" `date` $HOME",  //
      "%1 %2 %s %n %00",         //
      "a\\b;c:d|e&f<g>h",        // a folder of its own, not two
      "*.lng",                   //
      "~",                       //
      "-rf",                     //
      " ",                       //
      "..lng.",                  //
      "\x01\x1B[31m\x7F",        // takes a terminal over
      kTurned,
      "i\xCC\x88",                        // a letter and its dots apart
      std::string(255, 'x'),              // as long as a name can be
      std::string(200, 'y') + "\xFF\xFF"  // both
  };
}

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_SUPPORT_HOSTILE_NAMES_H_
