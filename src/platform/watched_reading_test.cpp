#include "platform/watched_reading.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace quillvane {
namespace {

// Answers Yes so often and then No, and keeps what it was told.
struct Watcher : TreeReading {
  explicit Watcher(int times) : yes_left(times) {}
  bool go_on(const TreeProgress& progress) override {
    folders.emplace_back(progress.folder);
    files.push_back(progress.files);
    threads.push_back(std::this_thread::get_id());
    return yes_left-- > 0;
  }

  int yes_left;
  std::vector<std::string> folders;
  std::vector<std::uint64_t> files;
  std::vector<std::thread::id> threads;
};

// A folder "C:\Temp" with "one" in it and "deep" in that.
struct Tree {
  TreeArena arena;
  ListedFolder* root = ListedFolder::make(arena, "", nullptr);
  ListedFolder* one = ListedFolder::make(arena, "one", root);
  ListedFolder* deep = ListedFolder::make(arena, "deep", one);
};

TEST(ReadWatched, AsksOnceBeforeAnythingIsRead) {
  Watcher watcher(1'000'000);
  ReadingState state;
  std::size_t asked_before = 0;
  read_watched(&watcher, "C:\\Temp\\", state, [&] { asked_before = watcher.folders.size(); });
  EXPECT_EQ(asked_before, 1U);
  EXPECT_EQ(watcher.folders.front(), "C:\\Temp");
  EXPECT_EQ(watcher.files.front(), 0U);
  EXPECT_FALSE(state.ended());
}

TEST(ReadWatched, ANoBeforeTheReadingEndsIt) {
  Watcher watcher(0);
  ReadingState state;
  bool was_ended = false;
  read_watched(&watcher, "C:\\Temp", state, [&] { was_ended = state.ended(); });
  EXPECT_TRUE(was_ended);
}

TEST(ReadWatched, ANoInTheMiddleEndsItWhereItIs) {
  Watcher watcher(3);
  ReadingState state;
  Tree tree;
  // Goes on until it is told to end, as a disk without an end would.
  read_watched(&watcher, "C:\\Temp", state, [&] {
    state.enter(*tree.deep);
    state.add_files(12);
    while (!state.ended()) std::this_thread::yield();
  });
  ASSERT_EQ(watcher.folders.size(), 4U);
  EXPECT_EQ(watcher.folders[3], "C:\\Temp\\one\\deep");
  EXPECT_EQ(watcher.files[3], 12U);
  for (const auto& thread : watcher.threads) EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST(ReadWatched, ReadsOnTheCallersThreadWhenNobodyWatches) {
  ReadingState state;
  std::thread::id thread;
  read_watched(nullptr, "C:\\Temp", state, [&] { thread = std::this_thread::get_id(); });
  EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST(ReadingState, EndsByItselfAtItsNumberOfFiles) {
  ReadingState state(10);
  state.add_files(9);
  EXPECT_FALSE(state.ended());
  state.add_files(1);
  EXPECT_TRUE(state.ended());
}

TEST(ReadingState, TellsThePathOfTheFolderInWork) {
  Tree tree;
  ReadingState state;
  EXPECT_EQ(state.folder_in_work("C:\\Temp"), "C:\\Temp");
  state.enter(*tree.root);
  EXPECT_EQ(state.folder_in_work("C:\\Temp"), "C:\\Temp");
  state.enter(*tree.one);
  EXPECT_EQ(state.folder_in_work("C:\\Temp"), "C:\\Temp\\one");
}

}  // namespace
}  // namespace quillvane
