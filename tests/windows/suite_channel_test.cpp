// The channel to the suite, whose part another process plays.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "platform/win32/win32_suite_channel.h"
#include "tests/windows/companion.h"

namespace quillvane {
namespace {

// The first bytes of the block; empty when there is no block.
std::string block(std::size_t length) {
  const HANDLE mapping = OpenFileMappingW(FILE_MAP_READ, FALSE, L"MyFileMappingObject");
  if (mapping == nullptr) return {};
  const void* view = MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, 256);
  EXPECT_NE(view, nullptr);
  const std::string bytes(static_cast<const char*>(view), length);
  UnmapViewOfFile(view);
  CloseHandle(mapping);
  return bytes;
}

TEST(SuiteChannel, TheSuitesWindowIsToldTheLengthAndReadsTheText) {
  Companion suite(companion_program(), L"suite \"Tidewrack\"");
  Win32SuiteChannel channel;
  channel.publish("j|12|3456");
  EXPECT_TRUE(channel.notify("Tidewrack", 9));
  EXPECT_EQ(suite.line(), "9 address j|12|3456");
}

TEST(SuiteChannel, WithoutTheWindowNobodyIsToldAndTheTextStays) {
  Win32SuiteChannel channel;
  channel.publish("j|12|3456");
  EXPECT_FALSE(channel.notify("Tidewrack", 9));
  EXPECT_EQ(block(9), "j|12|3456");
}

TEST(SuiteChannel, ATextReplacesTheOneBeforeWithoutATerminator) {
  Win32SuiteChannel channel;
  channel.publish("j|12|3456");
  channel.publish("j|7|8");
  EXPECT_EQ(block(10), std::string("j|7|83456\0", 10));
}

TEST(SuiteChannel, ATextTakenAwayIsGone) {
  Win32SuiteChannel channel;
  channel.publish("j|12|3456");
  channel.withdraw();
  EXPECT_EQ(block(9), "");
}

TEST(SuiteChannel, TheTextGoesWithTheProgram) {
  { Win32SuiteChannel().publish("j|12|3456"); }
  EXPECT_EQ(block(9), "");
}

TEST(SuiteChannel, ATextLargerThanTheBlockIsCutOff) {
  Win32SuiteChannel channel;
  channel.publish(std::string(255, 'a') + "bc");
  EXPECT_EQ(block(256), std::string(255, 'a') + "b");
}

}  // namespace
}  // namespace quillvane
