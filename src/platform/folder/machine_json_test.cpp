#include "platform/folder/machine_json.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "platform/folder/host_path.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

constexpr const char* kDir = "/machines/one";

// The path as the host spells it.
std::string on_host(const char* path) {
  return host_text(std::filesystem::absolute(path).make_preferred());
}

MachineState parsed(std::string_view text) {
  auto result = parse_machine_json(text, kDir);
  if (const auto* error = std::get_if<std::string>(&result)) {
    ADD_FAILURE() << *error;
    return {};
  }
  return std::get<MachineState>(std::move(result));
}

std::string refusal(std::string_view text) {
  const auto result = parse_machine_json(text, kDir);
  const auto* error = std::get_if<std::string>(&result);
  return error == nullptr ? "accepted" : *error;
}

std::string variable(const MachineState& state, std::string_view name) {
  std::string found = "(none)";
  for (const auto& [other, value] : state.environment) {
    if (other == name) found = value;
  }
  return found;
}

TEST(MachineJson, AnEmptyObjectIsAMachineOfDefaults) {
  const MachineState state = parsed("{}");
  ASSERT_EQ(state.drives.size(), 1U);
  EXPECT_EQ(state.drives[0].letter, 'C');
  EXPECT_EQ(state.drives[0].type, DriveType::kFixed);
  EXPECT_EQ(state.drives[0].folder, on_host("/machines/one/drive_c"));
  EXPECT_EQ(state.drives[0].total_bytes, std::nullopt);
  EXPECT_EQ(state.drives[0].free_bytes, std::nullopt);
  EXPECT_EQ(state.program_folder, "C:\\Program Files\\Tidewrack");
  EXPECT_FALSE(state.is_64_bit);
  EXPECT_EQ(state.code_page, 1252);
  EXPECT_EQ(state.utc_offset_minutes, 0);
  EXPECT_TRUE(state.processes.empty());
  EXPECT_TRUE(state.in_use.empty());
  EXPECT_TRUE(state.denied.empty());
  EXPECT_TRUE(state.url_cache.empty());
  EXPECT_TRUE(state.windows.empty());
}

TEST(MachineJson, TheDefaultEnvironmentIsThatOfAFreshWindows) {
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"WinDir", "C:\\Windows"},
      {"SystemRoot", "C:\\Windows"},
      {"SystemDrive", "C:"},
      {"USERPROFILE", "C:\\Users\\User"},
      {"USERNAME", "User"},
      {"APPDATA", "C:\\Users\\User\\AppData\\Roaming"},
      {"LOCALAPPDATA", "C:\\Users\\User\\AppData\\Local"},
      {"TEMP", "C:\\Users\\User\\AppData\\Local\\Temp"},
      {"TMP", "C:\\Users\\User\\AppData\\Local\\Temp"},
      {"ALLUSERSPROFILE", "C:\\ProgramData"},
      {"ProgramData", "C:\\ProgramData"},
      {"ProgramFiles", "C:\\Program Files"},
      {"ProgramW6432", "C:\\Program Files"},
      {"ProgramFiles(x86)", "C:\\Program Files (x86)"},
      {"OS", "Windows_NT"},
  };
  EXPECT_EQ(parsed("{}").environment, expected);
}

TEST(MachineJson, AllKeysAreRead) {
  const MachineState state = parsed(R"({
    "drives": [{"letter": "C", "type": "fixed", "total": 1000, "free": 250}],
    "environment": {"TEMP": "D:\\T"},
    "programFolder": "D:\\Tools",
    "is64Bit": true,
    "codePage": 932,
    "processes": [{"id": 4294967295, "name": "chrome.exe"}, {"id": 0, "name": "Idle"}],
    "inUse": ["C:\\a.tmp"],
    "denied": ["C:\\Secret", "C:\\Other"],
    "urlCache": [{"url": "http://a/", "file": "C:\\c\\a", "size": 12,
                  "lastAccess": "2013-03-07 09:05:00"},
                 {"url": "http://b/", "file": ""}],
    "windows": ["Tidewrack"],
    "utcOffsetMinutes": -330
  })");
  EXPECT_EQ(state.drives.at(0).total_bytes, 1000U);
  EXPECT_EQ(state.drives.at(0).free_bytes, 250U);
  EXPECT_EQ(variable(state, "TEMP"), "D:\\T");
  EXPECT_EQ(state.program_folder, "D:\\Tools");
  EXPECT_TRUE(state.is_64_bit);
  EXPECT_EQ(state.code_page, 932);
  ASSERT_EQ(state.processes.size(), 2U);
  EXPECT_EQ(state.processes[0].id, 4294967295U);
  EXPECT_EQ(state.processes[0].name, "chrome.exe");
  EXPECT_EQ(state.in_use, (std::vector<std::string>{"C:\\a.tmp"}));
  EXPECT_EQ(state.denied, (std::vector<std::string>{"C:\\Secret", "C:\\Other"}));
  ASSERT_EQ(state.url_cache.size(), 2U);
  EXPECT_EQ(state.url_cache[0].url, "http://a/");
  EXPECT_EQ(state.url_cache[0].file, "C:\\c\\a");
  EXPECT_EQ(state.url_cache[0].size, 12U);
  EXPECT_EQ(state.url_cache[0].last_access, "2013-03-07 09:05:00");
  EXPECT_EQ(state.url_cache[1].size, std::nullopt);
  EXPECT_EQ(state.url_cache[1].last_access, "");
  EXPECT_EQ(state.windows, (std::vector<std::string>{"Tidewrack"}));
  EXPECT_EQ(state.utc_offset_minutes, -330);
}

TEST(MachineJson, ADriveMayHaveAFolderAnywhere) {
  const MachineState state = parsed(R"({"drives": [
    {"letter": "d:", "type": "removable"},
    {"letter": "E", "type": "remote", "folder": "/mnt/share"},
    {"letter": "F", "type": "cdrom", "folder": "discs/../disc"},
    {"letter": "G", "type": "ramdisk"}]})");
  ASSERT_EQ(state.drives.size(), 4U);
  EXPECT_EQ(state.drives[0].letter, 'D');
  EXPECT_EQ(state.drives[0].type, DriveType::kRemovable);
  EXPECT_EQ(state.drives[0].folder, on_host("/machines/one/drive_d"));
  EXPECT_EQ(state.drives[1].type, DriveType::kRemote);
  EXPECT_EQ(state.drives[1].folder, on_host("/mnt/share"));
  EXPECT_EQ(state.drives[2].type, DriveType::kCdRom);
  EXPECT_EQ(state.drives[2].folder, on_host("/machines/one/disc"));
  EXPECT_EQ(state.drives[3].type, DriveType::kRamDisk);
}

TEST(MachineJson, AnEmptyListOfDrivesIsAMachineWithoutDrives) {
  EXPECT_TRUE(parsed(R"({"drives": []})").drives.empty());
}

TEST(MachineJson, GivenVariablesAreAddedToTheDefaultsWithoutRegardToCase) {
  const MachineState state = parsed(R"({"environment": {"temp": "D:\\T", "Kürzel": "ä"}})");
  EXPECT_EQ(variable(state, "TEMP"), "D:\\T");
  EXPECT_EQ(variable(state, "temp"), "(none)");
  EXPECT_EQ(variable(state, "TMP"), "C:\\Users\\User\\AppData\\Local\\Temp");
  EXPECT_EQ(state.environment.size(), 16U);
}

struct Refused {
  const char* text;
  const char* why;
};

constexpr Refused kRefused[] = {
    {R"([])", "machine.json: must be an object"},
    {R"("C")", "machine.json: must be an object"},
    {R"({"drives": {}})", "machine.json: drives: must be a list"},
    {R"({"drives": ["C"]})", "machine.json: drives[0]: must be an object"},
    {R"({"drives": [{}]})", "machine.json: drives[0].letter: is missing"},
    {R"({"drives": [{"letter": 3}]})", "machine.json: drives[0].letter: must be a text"},
    {R"({"drives": [{"letter": ""}]})",
     "machine.json: drives[0].letter: must be a letter from A to Z"},
    {R"({"drives": [{"letter": "CD"}]})",
     "machine.json: drives[0].letter: must be a letter from A to Z"},
    {R"({"drives": [{"letter": "ä"}]})",
     "machine.json: drives[0].letter: must be a letter from A to Z"},
    {R"({"drives": [{"letter": "C"}, {"letter": "c"}]})",
     "machine.json: drives[1].letter: C is there twice"},
    {R"({"codePage": 1252, "codePage": 1251})", "machine.json: codePage: is there twice"},
    {R"({"environment": {"PATH": "a", "Path": "b"}})",
     "machine.json: environment.Path: is there twice"},
    {R"({"environment": {"KÜRZEL": "a", "Kürzel": "b"}})",
     "machine.json: environment.Kürzel: is there twice"},
    {R"({"drives": [{"letter": "C"}, {"letter": "D", "type": "floppy"}]})",
     "machine.json: drives[1].type: must be one of fixed, removable, remote, cdrom, ramdisk"},
    {R"({"drives": [{"letter": "C", "folder": ""}]})",
     "machine.json: drives[0].folder: must name a folder"},
    {R"({"drives": [{"letter": "C", "folder": "a\u0000b"}]})",
     "machine.json: drives[0].folder: must not hold a NUL"},
    {R"({"drives": [{"letter": "C", "total": -1}]})",
     "machine.json: drives[0].total: must be a number of bytes"},
    {R"({"drives": [{"letter": "C", "free": 1.5}]})",
     "machine.json: drives[0].free: must be a number of bytes"},
    {R"({"drives": null})", "machine.json: drives: must be a list"},
    {R"({"environment": []})", "machine.json: environment: must be an object"},
    {R"({"environment": {"TEMP": 1}})", "machine.json: environment.TEMP: must be a text"},
    {R"({"environment": {"A=B": ""}})", "machine.json: environment.A=B: is no name of a variable"},
    {R"({"environment": {"": ""}})", "machine.json: environment.: is no name of a variable"},
    {R"({"environment": {"two\nlines": 1}})",
     "machine.json: environment.two?lines: must be a text"},
    {R"({"programFolder": 1})", "machine.json: programFolder: must be a text"},
    {R"({"is64Bit": "yes"})", "machine.json: is64Bit: must be true or false"},
    {R"({"codePage": "1252"})", "machine.json: codePage: must be a whole number from 1 to 65535"},
    {R"({"codePage": 0})", "machine.json: codePage: must be a whole number from 1 to 65535"},
    {R"({"codePage": 65536})", "machine.json: codePage: must be a whole number from 1 to 65535"},
    {R"({"codePage": 18446744073709551615})",
     "machine.json: codePage: must be a whole number from 1 to 65535"},
    {R"({"processes": [{"name": "a.exe"}]})", "machine.json: processes[0].id: is missing"},
    {R"({"processes": [{"id": 1}]})", "machine.json: processes[0].name: is missing"},
    {R"({"processes": [{"id": 4294967296, "name": "a.exe"}]})",
     "machine.json: processes[0].id: must be a whole number from 0 to 4294967295"},
    {R"({"processes": [{"id": -1, "name": "a.exe"}]})",
     "machine.json: processes[0].id: must be a whole number from 0 to 4294967295"},
    {R"({"inUse": "C:\\a"})", "machine.json: inUse: must be a list"},
    {R"({"denied": ["C:\\a", 2]})", "machine.json: denied[1]: must be a text"},
    {R"({"urlCache": [{"url": "http://a/"}]})", "machine.json: urlCache[0].file: is missing"},
    {R"({"urlCache": [{"file": ""}]})", "machine.json: urlCache[0].url: is missing"},
    {R"({"urlCache": [{"url": "u", "file": "f", "size": "1"}]})",
     "machine.json: urlCache[0].size: must be a number of bytes"},
    {R"({"urlCache": [{"url": "u", "file": "f", "lastAccess": "2013-02-30 00:00:00"}]})",
     "machine.json: urlCache[0].lastAccess: must be a date and time as 2013-03-07 09:05:00"},
    {R"({"urlCache": [{"url": "u", "file": "f", "lastAccess": ""}]})",
     "machine.json: urlCache[0].lastAccess: must be a date and time as 2013-03-07 09:05:00"},
    {R"({"windows": [null]})", "machine.json: windows[0]: must be a text"},
    {R"({"utcOffsetMinutes": 1441})",
     "machine.json: utcOffsetMinutes: must be a whole number from -1440 to 1440"},
    {R"({"utcOffsetMinutes": -1441})",
     "machine.json: utcOffsetMinutes: must be a whole number from -1440 to 1440"},
    {R"({"comment": {"by": ["me"]}, "codePage": 1251})",
     "machine.json: comment: there is no such key"},
    {R"({"Drives": []})", "machine.json: Drives: there is no such key"},
    {R"({"in\nuse": []})", "machine.json: in?use: there is no such key"},
    {R"({"drives": [{"letter": "C", "foldr": "disk"}]})",
     "machine.json: drives[0].foldr: there is no such key"},
    {R"({"processes": [{"id": 1, "nome": "a.exe"}]})",
     "machine.json: processes[0].nome: there is no such key"},
    {R"({"urlCache": [{"url": "u", "file": "f", "Size": 1}]})",
     "machine.json: urlCache[0].Size: there is no such key"},
    // Of several mistakes the first one is told.
    {R"({"denied": 1, "drives": 2})", "machine.json: drives: must be a list"},
};

TEST(MachineJson, WrongTypesAreToldWithFileKeyAndReason) {
  for (const Refused& each : kRefused) {
    EXPECT_EQ(refusal(each.text), each.why) << each.text;
  }
}

TEST(MachineJson, WhatIsNoJsonIsToldInOneLineWithItsPlace) {
  const std::string begin = "machine.json: is no JSON: parse error at line ";
  for (const std::string_view text :
       {"", "{", "{\"drives\": [}", "{} {}", "\xFF", "{\"a\": \"\xC3\"}", "{'a': 1}",
        "{\"a\": \"\n\"}", "{\"a\": 01}"}) {
    const std::string why = refusal(text);
    EXPECT_EQ(why.substr(0, begin.size()), begin) << text;
    EXPECT_EQ(std::count(why.begin(), why.end(), '\n'), 0) << why;
  }
  EXPECT_EQ(refusal("{\n\"codePage\" 1}").substr(0, begin.size() + 12), begin + "2, column 12");
}

TEST(MachineJson, ALongMistakeStaysAShortLine) {
  EXPECT_LT(refusal("{\"" + std::string(100'000, 'x')).size(), 250U);
}

TEST(MachineJson, DeepNestingIsNoDanger) {
  const std::string open(100'000, '[');
  EXPECT_EQ(refusal(open), "machine.json: is nested too deeply");
  const std::string deep = R"({"other": )" + std::string(20'000, '[') + std::string(20'000, ']') +
                           R"(, "codePage": 1251})";
  EXPECT_EQ(refusal(deep), "machine.json: is nested too deeply");
}

TEST(MachineJson, ADriveWhoseNamedFolderIsNotThereIsAMistake) {
  TempFolder folder;
  const auto refusal_of = [&folder](const char* drives) {
    folder.write("machine.json", drives);
    const auto loaded = load_machine_json(folder.path());
    const auto* error = std::get_if<std::string>(&loaded);
    return error == nullptr ? "accepted" : *error;
  };
  folder.write("file");
  folder.make_folder("disk");
  // A drive without a medium has no folder and names none.
  EXPECT_EQ(refusal_of(R"({"drives": [{"letter": "C"}, {"letter": "E", "type": "cdrom"}]})"),
            "accepted");
  EXPECT_EQ(refusal_of(R"({"drives": [{"letter": "D", "folder": "disk"}]})"), "accepted");
  const std::string begin = "machine.json: drives[1].folder: ";
  const std::string missing =
      refusal_of(R"({"drives": [{"letter": "C"}, {"letter": "D", "folder": "disc"}]})");
  EXPECT_TRUE(missing.starts_with(begin + host_text(host_path(folder.path_of("disc"))) + ": "))
      << missing;
  EXPECT_EQ(refusal_of(R"({"drives": [{"letter": "C"}, {"letter": "D", "folder": "file"}]})"),
            begin + host_text(host_path(folder.path_of("file"))) + ": is no folder");
}

}  // namespace
}  // namespace quillvane
