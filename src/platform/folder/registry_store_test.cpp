#include "platform/folder/registry_store.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/folder/host_path.h"
#include "platform/multi_string.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

constexpr const char* kQueueKey = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
constexpr const char* kQueueName = "PendingFileRenameOperations";

// For tests in which a lock is never let go.
constexpr std::chrono::milliseconds kNoWait{0};

RegistryValue text(const std::string& content) { return {RegistryType::kSz, content + '\0'}; }

class FolderRegistryTest : public testing::Test {
 protected:
  std::string file() const { return folder_.path_of("registry.db"); }

  // The store as a program that starts now finds it.
  std::unique_ptr<FolderRegistry> open() {
    auto result = FolderRegistry::open(file(), effects_, kNoWait);
    if (const auto* error = std::get_if<std::string>(&result)) {
      ADD_FAILURE() << *error;
      return nullptr;
    }
    return std::get<std::unique_ptr<FolderRegistry>>(std::move(result));
  }

  std::string open_failure() {
    const auto result = FolderRegistry::open(file(), effects_, kNoWait);
    const auto* error = std::get_if<std::string>(&result);
    return error == nullptr ? "opened" : *error;
  }

  std::optional<Names> value_names(const FolderRegistry& registry, Hive hive,
                                   const std::string& key) {
    const auto values = registry.values(hive, key);
    if (!values) return std::nullopt;
    Names names;
    for (const auto& value : *values) names.push_back(value.name);
    return names;
  }

  TempFolder folder_;
  EffectLog effects_;
};

// Another program at work on the store.
class OtherProgram {
 public:
  explicit OtherProgram(const std::string& file) {
    EXPECT_EQ(sqlite3_open(file.c_str(), &database_), SQLITE_OK);
  }
  ~OtherProgram() { sqlite3_close(database_); }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  void run(const char* sql) {
    EXPECT_EQ(sqlite3_exec(database_, sql, nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database_);
  }

 private:
  sqlite3* database_ = nullptr;
};

TEST_F(FolderRegistryTest, AMissingStoreIsAnEmptyRegistryAndStaysMissingWhenRead) {
  const auto registry = open();
  EXPECT_EQ(registry->sub_keys(Hive::kLocalMachine, ""), Names{});
  EXPECT_EQ(value_names(*registry, Hive::kLocalMachine, ""), Names{});
  EXPECT_EQ(registry->sub_keys(Hive::kLocalMachine, "SOFTWARE"), std::nullopt);
  EXPECT_FALSE(registry->values(Hive::kLocalMachine, "SOFTWARE").has_value());
  EXPECT_EQ(registry->value(Hive::kLocalMachine, "SOFTWARE", "a"), std::nullopt);
  EXPECT_FALSE(registry->set_value(Hive::kLocalMachine, "SOFTWARE", "a", text("1")));
  EXPECT_FALSE(folder_.has("registry.db"));
}

TEST_F(FolderRegistryTest, WhatWasWrittenIsThereForTheNextProgram) {
  {
    const auto registry = open();
    ASSERT_TRUE(registry->create_key(Hive::kCurrentUser, "Software\\Quillvane\\Tidewrack"));
    ASSERT_TRUE(registry->set_value(Hive::kCurrentUser, "Software\\Quillvane\\Tidewrack", "color",
                                    text("255")));
  }
  const auto registry = open();
  EXPECT_EQ(registry->sub_keys(Hive::kCurrentUser, "Software"), Names{"Quillvane"});
  EXPECT_EQ(registry->value(Hive::kCurrentUser, "Software\\Quillvane\\Tidewrack", "color"),
            text("255"));
}

TEST_F(FolderRegistryTest, NamesAreFoundWithoutRegardToCaseAndKeepTheirFirstCase) {
  const auto registry = open();
  ASSERT_TRUE(registry->create_key(Hive::kLocalMachine, "Software\\Größe"));
  ASSERT_TRUE(registry->create_key(Hive::kLocalMachine, "SOFTWARE\\GRÖßE\\Sub"));
  ASSERT_TRUE(registry->set_value(Hive::kLocalMachine, "software\\größe\\SUB", "Ä", text("1")));
  ASSERT_TRUE(registry->set_value(Hive::kLocalMachine, "software\\größe\\SUB", "ä", text("2")));
  EXPECT_EQ(registry->sub_keys(Hive::kLocalMachine, ""), Names{"Software"});
  EXPECT_EQ(registry->sub_keys(Hive::kLocalMachine, "SOFTWARE"), Names{"Größe"});
  EXPECT_EQ(value_names(*registry, Hive::kLocalMachine, "software\\größe\\sub"), Names{"Ä"});
  EXPECT_EQ(registry->value(Hive::kLocalMachine, "software\\größe\\sub", "ä"), text("2"));
}

TEST_F(FolderRegistryTest, SubKeysComeByNameWithoutRegardToCase) {
  const auto registry = open();
  for (const char* name : {"b", "_x", "C", "a", "Profile 10", "Profile 2"}) {
    ASSERT_TRUE(registry->create_key(Hive::kCurrentUser, "Keys\\"s + name));
  }
  EXPECT_EQ(registry->sub_keys(Hive::kCurrentUser, "Keys"),
            (Names{"a", "b", "C", "Profile 10", "Profile 2", "_x"}));
}

TEST_F(FolderRegistryTest, ValuesComeInTheOrderOfTheirFirstWriting) {
  const auto registry = open();
  ASSERT_TRUE(registry->create_key(Hive::kCurrentUser, "Key"));
  for (const char* name : {"c", "a", "", "b", "A"}) {
    ASSERT_TRUE(registry->set_value(Hive::kCurrentUser, "Key", name, text("1")));
  }
  EXPECT_EQ(value_names(*registry, Hive::kCurrentUser, "Key"), (Names{"c", "a", "", "b"}));
  ASSERT_TRUE(registry->remove_value(Hive::kCurrentUser, "Key", "c"));
  ASSERT_TRUE(registry->set_value(Hive::kCurrentUser, "Key", "c", text("2")));
  EXPECT_EQ(value_names(*registry, Hive::kCurrentUser, "Key"), (Names{"a", "", "b", "c"}));
}

TEST_F(FolderRegistryTest, ValuesKeepTypeAndBytesAsTheyAre) {
  const auto registry = open();
  ASSERT_TRUE(registry->create_key(Hive::kUsers, "K"));
  const std::vector<RegistryValue> all = {
      {RegistryType::kSz, ""},
      {RegistryType::kSz, "no terminator"},
      {RegistryType::kNone, "\0\xFF\xFE"s},
      {RegistryType::kDword, "\1\0\0\0"s},
      {static_cast<RegistryType>(0xFFFFFFFF), "x"},
  };
  for (const RegistryValue& value : all) {
    ASSERT_TRUE(registry->set_value(Hive::kUsers, "K", "v", value));
    EXPECT_EQ(registry->value(Hive::kUsers, "K", "v"), value);
  }
}

TEST_F(FolderRegistryTest, TheHivesAreApartAndBothViewsAreOne) {
  const auto registry = open();
  ASSERT_TRUE(registry->create_key(Hive::kLocalMachine, "Key"));
  ASSERT_TRUE(registry->set_value(Hive::kLocalMachine, "Key", "v", text("1")));
  for (const Hive other : {Hive::kClassesRoot, Hive::kCurrentUser, Hive::kUsers}) {
    EXPECT_EQ(registry->sub_keys(other, "Key"), std::nullopt);
    EXPECT_EQ(registry->sub_keys(other, ""), Names{});
  }
  EXPECT_EQ(registry->value(Hive::kLocalMachine, "Key", "v", KeyAccess::kSystemSettings),
            text("1"));
}

TEST_F(FolderRegistryTest, AHiveHasValuesOfItsOwn) {
  const auto registry = open();
  EXPECT_TRUE(registry->create_key(Hive::kUsers, ""));
  EXPECT_TRUE(registry->set_value(Hive::kUsers, "", "v", text("1")));
  EXPECT_EQ(registry->value(Hive::kUsers, "", "v"), text("1"));
}

TEST_F(FolderRegistryTest, ABackslashAtTheEndOfAPathIsIgnoredAndNowhereElse) {
  const auto registry = open();
  ASSERT_TRUE(registry->create_key(Hive::kCurrentUser, "A\\B\\"));
  EXPECT_EQ(registry->sub_keys(Hive::kCurrentUser, "A\\"), Names{"B"});
  EXPECT_EQ(registry->sub_keys(Hive::kCurrentUser, "\\A"), std::nullopt);
  EXPECT_EQ(registry->sub_keys(Hive::kCurrentUser, "A\\\\B"), std::nullopt);
  EXPECT_FALSE(registry->create_key(Hive::kCurrentUser, "\\A"));
  EXPECT_FALSE(registry->create_key(Hive::kCurrentUser, "A\\\\B"));
}

TEST_F(FolderRegistryTest, AValueNeedsItsKey) {
  const auto registry = open();
  ASSERT_TRUE(registry->create_key(Hive::kCurrentUser, "A"));
  EXPECT_FALSE(registry->set_value(Hive::kCurrentUser, "A\\B", "v", text("1")));
  EXPECT_EQ(registry->sub_keys(Hive::kCurrentUser, "A"), Names{});
  EXPECT_TRUE(registry->store_value(Hive::kCurrentUser, "A\\B", "v", text("1")));
  EXPECT_EQ(registry->value(Hive::kCurrentUser, "A\\B", "v"), text("1"));
}

TEST_F(FolderRegistryTest, AKeyThatCannotBeMadeLeavesNoneOfThoseAboveIt) {
  const auto registry = open();
  std::string longest(255, 'x');
  EXPECT_TRUE(registry->create_key(Hive::kCurrentUser, longest));
  EXPECT_FALSE(registry->create_key(Hive::kCurrentUser, "A\\x" + longest));
  EXPECT_FALSE(registry->create_key(Hive::kCurrentUser, "A\\two\nlines"));
  std::string deep = "A";
  for (int i = 0; i < 512; ++i) deep += "\\a";
  EXPECT_FALSE(registry->create_key(Hive::kCurrentUser, deep));
  EXPECT_EQ(registry->sub_keys(Hive::kCurrentUser, ""), Names{longest});
  EXPECT_TRUE(registry->create_key(Hive::kCurrentUser, deep.substr(0, deep.size() - 2)));
}

TEST_F(FolderRegistryTest, ARemovedKeyTakesAllBelowItAlong) {
  const auto registry = open();
  ASSERT_TRUE(registry->store_value(Hive::kCurrentUser, "A\\B\\C", "v", text("1")));
  ASSERT_TRUE(registry->store_value(Hive::kCurrentUser, "A\\D", "v", text("2")));
  EXPECT_TRUE(registry->remove_key(Hive::kCurrentUser, "a\\b"));
  EXPECT_EQ(registry->sub_keys(Hive::kCurrentUser, "A"), Names{"D"});
  ASSERT_TRUE(registry->create_key(Hive::kCurrentUser, "A\\B\\C"));
  EXPECT_EQ(registry->value(Hive::kCurrentUser, "A\\B\\C", "v"), std::nullopt);
  EXPECT_EQ(registry->value(Hive::kCurrentUser, "A\\D", "v"), text("2"));
  EXPECT_TRUE(registry->remove_key(Hive::kCurrentUser, "A\\Gone"));
  EXPECT_FALSE(registry->remove_key(Hive::kCurrentUser, ""));
}

TEST_F(FolderRegistryTest, StepsAreKeptOrDroppedTogether) {
  const auto registry = open();
  EXPECT_FALSE(registry->at_one_stroke([&] {
    EXPECT_TRUE(registry->store_value(Hive::kCurrentUser, "A", "v", text("1")));
    EXPECT_EQ(registry->value(Hive::kCurrentUser, "A", "v"), text("1"));
    return false;
  }));
  EXPECT_EQ(registry->sub_keys(Hive::kCurrentUser, ""), Names{});
  EXPECT_TRUE(registry->at_one_stroke(
      [&] { return registry->store_value(Hive::kCurrentUser, "A", "v", text("1")); }));
  EXPECT_EQ(open()->value(Hive::kCurrentUser, "A", "v"), text("1"));
}

TEST_F(FolderRegistryTest, WritingThePendingRenamesIsAnEffectWithItsList) {
  const auto registry = open();
  const Names queue = {"\\??\\C:\\a.tmp", "", "\\??\\C:\\b.tmp", "", ""};
  const RegistryValue value{RegistryType::kMultiSz, multi_string_data(queue)};
  ASSERT_TRUE(registry->create_key(Hive::kLocalMachine, kQueueKey));
  ASSERT_TRUE(registry->set_value(Hive::kLocalMachine,
                                  "system\\CURRENTCONTROLSET\\control\\"
                                  "session manager\\",
                                  "pendingfilerenameoperations", value));
  EXPECT_EQ(effects_.take(), (std::vector<Effect>{{"queue-write", {{"value", queue}}}}));
  EXPECT_EQ(registry->value(Hive::kLocalMachine, kQueueKey, kQueueName), value);
}

TEST_F(FolderRegistryTest, OtherWritesAndSettingUpAreNoEffects) {
  const auto registry = open();
  const RegistryValue value{RegistryType::kMultiSz, multi_string_data({"a"})};
  ASSERT_TRUE(registry->store_value(Hive::kLocalMachine, kQueueKey, kQueueName, value));
  ASSERT_TRUE(registry->set_value(Hive::kLocalMachine, kQueueKey, "Other", value));
  ASSERT_TRUE(registry->create_key(Hive::kCurrentUser, kQueueKey));
  ASSERT_TRUE(registry->set_value(Hive::kCurrentUser, kQueueKey, kQueueName, value));
  EXPECT_FALSE(registry->set_value(Hive::kLocalMachine, "SYSTEM\\Gone", kQueueName, value));
  EXPECT_TRUE(effects_.take().empty());
}

TEST_F(FolderRegistryTest, AValueOfManyMegabytesComesBackWhole) {
  const std::string data(20'000'000, 'q');
  ASSERT_TRUE(open()->store_value(Hive::kLocalMachine, "K", "v", {RegistryType::kBinary, data}));
  const auto value = open()->value(Hive::kLocalMachine, "K", "v");
  ASSERT_TRUE(value.has_value());
  EXPECT_TRUE(value->data == data) << value->data.size() << " bytes";
}

TEST_F(FolderRegistryTest, AnEmptyFileIsAnEmptyRegistry) {
  folder_.write("registry.db");
  const auto registry = open();
  EXPECT_EQ(registry->sub_keys(Hive::kCurrentUser, ""), Names{});
  EXPECT_TRUE(registry->store_value(Hive::kCurrentUser, "A", "v", text("1")));
  EXPECT_EQ(registry->value(Hive::kCurrentUser, "A", "v"), text("1"));
}

TEST_F(FolderRegistryTest, AStoreThatComesIntoBeingLaterIsFound) {
  const auto early = open();
  EXPECT_EQ(early->sub_keys(Hive::kCurrentUser, ""), Names{});
  ASSERT_TRUE(open()->store_value(Hive::kCurrentUser, "A", "v", text("1")));
  EXPECT_EQ(early->value(Hive::kCurrentUser, "A", "v"), text("1"));
}

TEST_F(FolderRegistryTest, AFileThatIsNoStoreIsRefusedWithTheReason) {
  folder_.write("registry.db", std::string(5000, 'x'));
  EXPECT_EQ(open_failure(), "registry.db: cannot be read: file is not a database");
  EXPECT_EQ(folder_.read("registry.db"), std::string(5000, 'x'));
}

TEST_F(FolderRegistryTest, ADatabaseOfAnotherProgramIsRefused) {
  OtherProgram(file()).run("CREATE TABLE reg_key (id)");
  EXPECT_EQ(open_failure(), "registry.db: is the database of another program");
}

TEST_F(FolderRegistryTest, AStoreOfALaterFormatIsRefused) {
  ASSERT_TRUE(open()->create_key(Hive::kCurrentUser, "A"));
  OtherProgram(file()).run("PRAGMA user_version = 2");
  EXPECT_EQ(open_failure(),
            "registry.db: has a format that this version of the program cannot read");
}

// The hives' numbers are below zero: such a key is its own hive.
TEST_F(FolderRegistryTest, AKeyWithinItselfIsRefused) {
  ASSERT_TRUE(open()->create_key(Hive::kCurrentUser, "Software"));
  OtherProgram(file()).run("INSERT INTO reg_key VALUES (-3, -3, 'Self', 'SELF')");
  EXPECT_EQ(open_failure(), "registry.db: is damaged: a key lies within itself");
}

TEST_F(FolderRegistryTest, AStoreWithOtherTablesIsRefused) {
  for (const char* change :
       {"CREATE TABLE more (id)", "CREATE VIEW reg AS SELECT 1",
        "CREATE TRIGGER t AFTER INSERT ON reg_value BEGIN DELETE FROM reg_key; END",
        "ALTER TABLE reg_key ADD COLUMN more",
        "ALTER TABLE reg_key RENAME TO reg; CREATE VIEW reg_key AS SELECT * FROM reg"}) {
    std::filesystem::remove(host_path(file()));
    ASSERT_TRUE(open()->create_key(Hive::kCurrentUser, "Software"));
    EXPECT_EQ(open_failure(), "opened");

    OtherProgram(file()).run(change);

    EXPECT_EQ(open_failure(), "registry.db: is damaged: its tables are others") << change;
  }
}

TEST_F(FolderRegistryTest, AFolderInPlaceOfTheStoreIsRefused) {
  folder_.make_folder("registry.db");
  EXPECT_EQ(open_failure(), "registry.db: is no file");
}

TEST_F(FolderRegistryTest, ATornStoreIsRefused) {
  ASSERT_TRUE(open()->store_value(Hive::kLocalMachine, "K", "v",
                                  {RegistryType::kBinary, std::string(100'000, 'q')}));
  std::filesystem::resize_file(file(), 50'000);
  EXPECT_EQ(open_failure(), "registry.db: cannot be read: database disk image is malformed");
}

TEST_F(FolderRegistryTest, AStoreWithADestroyedPageIsRefused) {
  ASSERT_TRUE(open()->store_value(Hive::kLocalMachine, "K", "v", text("1")));
  std::string bytes = *folder_.read("registry.db");
  ASSERT_GT(bytes.size(), 4096U);
  bytes = bytes.substr(0, 4096) + std::string(bytes.size() - 4096, '\x55');
  folder_.write("registry.db", bytes);
  const std::string begin = "registry.db: is damaged: ";
  EXPECT_EQ(open_failure().substr(0, begin.size()), begin);
  EXPECT_EQ(open_failure().find('\n'), std::string::npos);
}

TEST_F(FolderRegistryTest, ALockedStoreIsRefusedAtTheStart) {
  ASSERT_TRUE(open()->create_key(Hive::kCurrentUser, "A"));
  OtherProgram other(file());
  other.run("BEGIN EXCLUSIVE");
  EXPECT_EQ(open_failure(), "registry.db: is locked by another program");
}

TEST_F(FolderRegistryTest, WhileTheStoreIsLockedReadsAndWritesFailAndSayWhy) {
  const auto registry = open();
  ASSERT_TRUE(registry->store_value(Hive::kCurrentUser, "A", "v", text("1")));
  const std::string locked = "the registry is locked by another program";
  {
    OtherProgram other(file());
    other.run("BEGIN EXCLUSIVE");
    EXPECT_EQ(registry->value(Hive::kCurrentUser, "A", "v").problem(), locked);
    EXPECT_EQ(registry->value(Hive::kCurrentUser, "Gone", "v").problem(), locked);
    EXPECT_EQ(registry->sub_keys(Hive::kCurrentUser, "").problem(), locked);
    EXPECT_EQ(registry->values(Hive::kCurrentUser, "A").problem(), locked);
    EXPECT_EQ(registry->create_key(Hive::kCurrentUser, "B").problem(), locked);
    EXPECT_EQ(registry->set_value(Hive::kCurrentUser, "A", "v", text("2")).problem(), locked);
    EXPECT_FALSE(registry->remove_key(Hive::kCurrentUser, "A"));
    EXPECT_FALSE(registry->remove_value(Hive::kCurrentUser, "A", "v"));
  }
  EXPECT_EQ(registry->value(Hive::kCurrentUser, "A", "v"), text("1"));
}

TEST_F(FolderRegistryTest, AnAbsentValueIsNoFailure) {
  const auto registry = open();
  EXPECT_FALSE(registry->value(Hive::kCurrentUser, "A", "v").failed());
  ASSERT_TRUE(registry->create_key(Hive::kCurrentUser, "A"));
  for (const char* key : {"A", "B", "A\\B"}) {
    const auto value = registry->value(Hive::kCurrentUser, key, "v");
    EXPECT_FALSE(value.has_value()) << key;
    EXPECT_FALSE(value.failed()) << key;
  }
  EXPECT_FALSE(registry->values(Hive::kCurrentUser, "B").failed());
  EXPECT_FALSE(registry->sub_keys(Hive::kCurrentUser, "B").failed());
}

TEST_F(FolderRegistryTest, AStoreThatIsDestroyedWhileItIsOpenCannotBeRead) {
  const auto registry = open();
  ASSERT_TRUE(registry->store_value(Hive::kCurrentUser, "A", "v", text("1")));
  OtherProgram(file()).run("DROP TABLE reg_value");
  const auto value = registry->value(Hive::kCurrentUser, "A", "v");
  EXPECT_FALSE(value.has_value());
  EXPECT_EQ(value.problem(), "the registry cannot be read: no such table: reg_value");
  EXPECT_EQ(registry->set_value(Hive::kCurrentUser, "A", "v", text("2")).problem(),
            "the registry cannot be written: no such table: reg_value");
}

TEST_F(FolderRegistryTest, AStoreThatAnotherProgramMakesInTheMeantimeIsTaken) {
  const auto first = open();
  const auto second = open();
  ASSERT_TRUE(first->create_key(Hive::kCurrentUser, "A"));
  EXPECT_TRUE(second->create_key(Hive::kCurrentUser, "B"));
  EXPECT_EQ(first->sub_keys(Hive::kCurrentUser, ""), (Names{"A", "B"}));
}

}  // namespace
}  // namespace quillvane
