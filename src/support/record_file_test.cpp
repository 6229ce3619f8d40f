#include "support/record_file.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "tests/support/temp_machine.h"
#include "tests/support/unreadable_file.h"

namespace quillvane {
namespace {

const std::string kPath = "C:\\list.orv";
constexpr std::array<std::size_t, 3> kWidths = {4, 3, 1};  // 8 bytes a record

using Records = std::vector<Record>;

struct Stage {
  explicit Stage(int code_page = 1252)
      : machine("{\"codePage\": " + std::to_string(code_page) + "}") {}

  // What is read from a file of these bytes.
  RecordFile read(const std::string& bytes) {
    machine.add_text_file(kPath, bytes);
    return read_record_file(machine.platform(), kPath, kWidths);
  }
  // What a file of these records holds.
  std::string bytes_of(const Records& records) {
    EXPECT_TRUE(write_record_file(machine.platform(), kPath, kWidths, records));
    return machine.file_text(kPath).value_or("nothing");
  }

  TempMachine machine;
};

TEST(RecordCount, IsTheNearestWholeNumber) {
  EXPECT_EQ(record_count(0, 401), 0);
  EXPECT_EQ(record_count(200, 401), 0);
  EXPECT_EQ(record_count(201, 401), 1);
  EXPECT_EQ(record_count(401, 401), 1);
  EXPECT_EQ(record_count(601, 401), 1);
  EXPECT_EQ(record_count(602, 401), 2);
  EXPECT_EQ(record_count(50, 101), 0);
  EXPECT_EQ(record_count(51, 101), 1);
}

TEST(RecordCount, RoundsAHalfToTheEvenNumber) {
  EXPECT_EQ(record_count(4, 8), 0);
  EXPECT_EQ(record_count(12, 8), 2);
  EXPECT_EQ(record_count(20, 8), 2);
  EXPECT_EQ(record_count(28, 8), 4);
}

TEST(RecordCount, EndsWhereSixteenBitsWithASignEnd) {
  EXPECT_EQ(record_count(32767 * 101, 101), 32767);
  EXPECT_EQ(record_count(32767 * 101 + 50, 101), 32767);
  EXPECT_EQ(record_count(32767 * 101 + 51, 101), std::nullopt);
  EXPECT_EQ(record_count(65537 * 101, 101), std::nullopt);
}

TEST(RecordFile, IsFieldsWithoutTheBlanksAroundThem) {
  Stage stage;
  const RecordFile file = stage.read("abcdefg1 x  y    a b    ");
  EXPECT_EQ(file.records, (Records{{"abcd", "efg", "1"}, {"x", "y", ""}, {"a b", "", ""}}));
  EXPECT_EQ(file.problem, "");
}

TEST(RecordFile, KeepsItsBlankRecords) {
  EXPECT_EQ(Stage().read("        ab      ").records, (Records{{"", "", ""}, {"ab", "", ""}}));
}

TEST(RecordFile, ReadsATornRecordAsFarAsItGoes) {
  Stage stage;
  EXPECT_EQ(stage.read("abcdefg1ab cd").records,
            (Records{{"abcd", "efg", "1"}, {"ab c", "d", ""}}));
  EXPECT_EQ(stage.read("abcdefg1abc").records, (Records{{"abcd", "efg", "1"}}));
  EXPECT_EQ(stage.read("abcde").records, (Records{{"abcd", "e", ""}}));
}

TEST(RecordFile, HasNoRecordsWhenItIsMissingOrEmpty) {
  Stage stage;
  EXPECT_EQ(read_record_file(stage.machine.platform(), kPath, kWidths).problem, "");
  EXPECT_FALSE(stage.machine.has_file(kPath));
  EXPECT_EQ(stage.read("").records, Records{});
}

TEST(RecordFile, IsMadeWhenItIsOpenedAndMissing) {
  Stage stage;
  const RecordFile file = open_record_file(stage.machine.platform(), kPath, kWidths);
  EXPECT_EQ(file.records, Records{});
  EXPECT_EQ(file.problem, "");
  EXPECT_EQ(stage.machine.file_text(kPath), "");
}

TEST(RecordFile, StaysWhatItIsWhenItIsOpened) {
  Stage stage;
  stage.machine.add_text_file(kPath, "abcdefg1x");
  EXPECT_EQ(open_record_file(stage.machine.platform(), kPath, kWidths).records,
            (Records{{"abcd", "efg", "1"}}));
  EXPECT_EQ(stage.machine.file_text(kPath), "abcdefg1x");
}

TEST(RecordFile, SaysWhyItCannotBeRead) {
  Stage stage;
  stage.machine.add_text_file(kPath, "abcdefg1");
  UnreadableFile files(stage.machine.platform().files, kPath, ReadFailure::kDenied);
  const Platform platform = stage.machine.platform().with({.files = &files});
  EXPECT_EQ(read_record_file(platform, kPath, kWidths).problem, "access is denied");
  EXPECT_EQ(open_record_file(platform, kPath, kWidths).problem, "access is denied");
  EXPECT_EQ(stage.machine.file_text(kPath), "abcdefg1");
}

TEST(RecordFile, WithZerosOrTooManyRecordsIsNotRead) {
  Stage stage;
  const RecordFile zeros = stage.read(std::string("abcdefg1\0\0\0\0\0\0\0\0", 16));
  EXPECT_EQ(zeros.records, Records{});
  EXPECT_EQ(zeros.problem, "it is no list");
  const RecordFile many = stage.read(std::string(std::size_t{8} * 32768, 'x'));
  EXPECT_EQ(many.records, Records{});
  EXPECT_EQ(many.problem, "it has more entries than can be counted");
}

TEST(RecordFile, IsWrittenWithFieldsFilledUpAndCut) {
  Stage stage;
  EXPECT_EQ(stage.bytes_of({{"ab", "c", "1"}, {"abcdef", "defg", "10"}, {"a"}, {}}),
            "ab  c  1"
            "abcddef1"
            "a       "
            "        ");
  EXPECT_EQ(stage.bytes_of({}), "");
}

TEST(RecordFile, HasEachFieldInTheCodePageOrInUtf8) {
  Stage stage;
  const std::string bytes = stage.bytes_of({{"\u00F6\u00DF", "\u0416", "1"}, {"\u0416\u0416x"}});
  EXPECT_EQ(bytes,
            "\xF6\xDF  "
            "\u0416 1"
            "\u0416\u0416    ");
  EXPECT_EQ(read_record_file(stage.machine.platform(), kPath, kWidths).records,
            (Records{{"\u00F6\u00DF", "\u0416", "1"}, {"\u0416\u0416", "", ""}}));
}

TEST(RecordFile, InUseStaysAsItWas) {
  TempMachine machine(R"({"inUse": ["C:\\list.orv"]})");
  machine.add_text_file(kPath, "abcdefg1");
  EXPECT_FALSE(write_record_file(machine.platform(), kPath, kWidths, {{"x"}}));
  EXPECT_EQ(machine.file_text(kPath), "abcdefg1");
}

}  // namespace
}  // namespace quillvane
