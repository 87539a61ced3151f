#include "cli/flash_info.h"

#include <fmt/format.h>

#include <algorithm>

#include "cli/address_text.h"
#include "core/flash/flash_contents.h"
#include "core/formats/hex.h"

namespace vendlingua::cli {
namespace {

// A file of single bytes has millions of ranges; nobody reads that many.
constexpr std::size_t kMostRanges = 10'000;

struct FlashInfo {
  std::string type;
  std::string identification;  ///< empty where none is known
  std::vector<AddressRange> ranges;
  std::vector<AddressRange> gaps;
  std::vector<FlashSlot> slots;  ///< none where the board is not known
  const Alphabet& alphabet;
};

FlashInfo InfoOf(const Session& session, const FlashFile& file,
                 const std::optional<MessageSet>& dimensions) {
  const auto identification = Identification(file);
  const std::vector<AddressRange> ranges = file.memory.Ranges();
  return {IsIdentifiedCopy(file) ? "identified copy" : "flash file",
          identification ? ToUtf8(*identification) : "",
          ranges,
          GapsBetween(ranges),
          dimensions ? SlotsOf(file.memory, *dimensions) : std::vector<FlashSlot>(),
          dimensions ? session.AlphabetFor(*dimensions) : session.alphabet()};
}

Json TextOrNull(const std::string& text) { return text.empty() ? Json() : Json(text); }

Json AsJson(const std::vector<AddressRange>& ranges) {
  Json json = Json::array();
  for (std::size_t i = 0; i < std::min(ranges.size(), kMostRanges); ++i) {
    json.push_back({{"address", ranges[i].first}, {"length", ranges[i].length}});
  }
  return json;
}

Json AsJson(const FlashInfo& info, const std::string& path, const FlashFile& file) {
  Json records = Json::object();
  for (std::size_t type = 0; type < file.records.size(); ++type) {
    if (file.records.at(type) > 0) {
      records[fmt::format("S{}", type)] = file.records.at(type);
    }
  }
  Json slots = Json::array();
  for (std::size_t i = 0; i < info.slots.size(); ++i) {
    const FlashSlot& slot = info.slots[i];
    slots.push_back({{"slot", i},
                     {"address", slot.address},
                     {"length", slot.length},
                     {"held", slot.is_held},
                     {"name", TextOrNull(info.alphabet.TextOf(slot.name))}});
  }
  Json json = {{"file", path},
               {"type", info.type},
               {"identification", TextOrNull(info.identification)},
               {"records", records},
               {"ranges", AsJson(info.ranges)},
               {"gaps", AsJson(info.gaps)},
               {"slots", slots}};
  if (info.ranges.size() > kMostRanges) {
    json["unlisted"] = info.ranges.size() - kMostRanges;
  }
  return json;
}

std::string RecordsLine(const FlashFile& file) {
  std::string line;
  for (std::size_t type = 0; type < file.records.size(); ++type) {
    if (file.records.at(type) > 0) {
      line +=
          fmt::format("{} {} S{}", line.empty() ? "records:" : ",", file.records.at(type), type);
    }
  }
  return line + "\n";
}

std::string RangeLine(std::string_view what, const AddressRange& range) {
  return fmt::format("{}: {}, {} byte{}\n", what, RangeText(range), range.length,
                     range.length == 1 ? "" : "s");
}

// Ranges and the gaps between them, by address.
std::string MemoryLines(const FlashInfo& info) {
  std::string lines;
  for (std::size_t i = 0; i < std::min(info.ranges.size(), kMostRanges); ++i) {
    if (i > 0) {
      lines += RangeLine("gap", info.gaps[i - 1]);
    }
    lines += RangeLine("range", info.ranges[i]);
  }
  if (info.ranges.size() > kMostRanges) {
    lines += fmt::format("and {} more ranges\n", info.ranges.size() - kMostRanges);
  }
  return lines;
}

std::string NameOf(const FlashSlot& slot, const Alphabet& alphabet) {
  if (!slot.is_held) {
    return "not in the file";
  }
  return slot.name.empty() ? "without a name" : alphabet.TextOf(slot.name);
}

std::string FlashInfoAsText(const FlashInfo& info, const std::string& path, const FlashFile& file) {
  std::string text = fmt::format("file: {}\ntype: {}\n", path, info.type);
  if (!info.identification.empty()) {
    text += "identification: " + info.identification + "\n";
  }
  text += RecordsLine(file) + MemoryLines(info);
  for (std::size_t i = 0; i < info.slots.size(); ++i) {
    const FlashSlot& slot = info.slots[i];
    text +=
        fmt::format("slot {}: {}, {}\n", i, AddressText(slot.address), NameOf(slot, info.alphabet));
  }
  return text;
}

}  // namespace

void PrintFlashInfo(Session& session, const std::string& path, const FlashFile& file,
                    const std::optional<MessageSet>& dimensions) {
  const FlashInfo info = InfoOf(session, file, dimensions);
  session.Print(AsJson(info, path, file), FlashInfoAsText(info, path, file));
}

}  // namespace vendlingua::cli
