#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "core/formats/srecord.h"
#include "core/formats/srecord_check.h"
#include "random_files.h"
#include "strict_srecords.h"

namespace vendlingua {
namespace {

using test::AnyOf;

struct RandomImage {
  std::string bytes;
  std::uint32_t start = 0;
  SRecordType type = SRecordType::kS1;
  std::size_t address_digits = 1;  ///< at least so many

  std::string Records() const {
    const DisplayCodes image = test::Codes(bytes);
    return FormatSRecords(image, start, type, address_digits);
  }
};

void showValue(const RandomImage& image, std::ostream& out) {
  out << image.bytes.size() << " bytes from " << image.start << " on, S"
      << static_cast<char>(image.type);
}

// A record is sound where its address has 4 digits (S1) or 6 (S2): it is large enough, or padded.
rc::Gen<RandomImage> RandomImages() {
  return rc::gen::exec([] {
    RandomImage image;
    image.bytes = test::RandomCells(*rc::gen::arbitrary<std::uint32_t>(), AnyOf(1, 3000),
                                    test::Placeholders::kMany);
    const bool padded = *rc::gen::arbitrary<bool>();
    if (*rc::gen::arbitrary<bool>()) {
      image.type = SRecordType::kS2;
      image.start =
          static_cast<std::uint32_t>(AnyOf(padded ? 0 : 0x100000, 0x1000000 - image.bytes.size()));
      image.address_digits = padded ? 6 : 1;
    } else {
      image.start =
          static_cast<std::uint32_t>(AnyOf(padded ? 0 : 0x1000, 0x10000 - image.bytes.size()));
      image.address_digits = padded ? 4 : 1;
    }
    return image;
  });
}

RC_GTEST_PROP(SRecordProperty, EveryRecordVerifiesAndTogetherTheyAreTheImage, ()) {
  const RandomImage image = *RandomImages();
  const auto records = test::ParseFileStrictly(image.Records());
  RC_ASSERT(test::ImageOf(records, image.start) == image.bytes);
  for (std::size_t i = 0; i < records.size(); ++i) {
    RC_ASSERT(records[i].type == static_cast<char>(image.type));
    RC_ASSERT((i + 1 == records.size() || records[i].data.size() == 16U));
  }
}

RC_GTEST_PROP(SRecordProperty, WhatIsWrittenIsFoundSound, ()) {
  RC_ASSERT(CheckSRecords((*RandomImages()).Records()).empty());
}

// Not so the digit of the type: it may turn a data record into a sound one without data.
RC_GTEST_PROP(SRecordProperty, AnyOtherDigitIsFound, ()) {
  std::string records = (*RandomImages()).Records();
  const std::size_t position = AnyOf(0, records.size() - 1);
  RC_PRE((records[position] != '\r' && records[position] != '\n'));
  // Parentheses, because the macro would look at both sides.
  RC_PRE((position == 0 || records[position - 1] != 'S'));
  const char other = *rc::gen::distinctFrom(
      rc::gen::elementOf(std::string("0123456789ABCDEFabcdefSXYZ #")), records[position]);
  records[position] = other;
  RC_ASSERT(!CheckSRecords(records).empty());
}

RC_GTEST_PROP(SRecordProperty, ARecordIsDecodedToWhatItWasMadeOf, ()) {
  const std::size_t address = AnyOf(0, 0xFFFFFF);
  const std::string data = test::RandomCells(*rc::gen::arbitrary<std::uint32_t>(), AnyOf(0, 251),
                                             test::Placeholders::kMany);
  SRecord record;
  ParseSRecord(test::S2Line(address, data), record);
  RC_ASSERT(record.type == '2');
  RC_ASSERT(record.address == address);
  RC_ASSERT(test::Text(record.Data()) == data);
  RC_ASSERT(record.ChecksumIsRight());
}

RC_GTEST_PROP(SRecordProperty, AnyLineIsDecodedOrRefused, ()) {
  const std::string line =
      *rc::gen::container<std::string>(rc::gen::elementOf(std::string("SSSS012345678900AFaf Z")));
  SRecord record;
  try {
    ParseSRecord(line, record);
    RC_ASSERT(line.size() >= 8U);
  } catch (const SRecordSyntaxError&) {
    RC_SUCCEED("refused");
  }
}

}  // namespace
}  // namespace vendlingua
