// The URL cache of WinINet, with entries of the test's own among those that may be there.
#include <gtest/gtest.h>
#include <windows.h>

#include <wininet.h>

#include <map>
#include <string>
#include <vector>

#include "platform/win32/wide_text.h"
#include "platform/win32/win32_file_system.h"
#include "platform/win32/win32_url_cache.h"

namespace quillvane {
namespace {

class UrlCacheTest : public testing::Test {
 protected:
  ~UrlCacheTest() override {
    for (const std::string& url : made_) DeleteUrlCacheEntryW(widen(url).c_str());
  }

  // Makes an entry with a file and answers the file's path.
  std::string add(const std::string& url) {
    made_.push_back(url);
    const std::wstring wide = widen(url);
    wchar_t file[MAX_PATH] = L"";
    EXPECT_TRUE(CreateUrlCacheEntryW(wide.c_str(), 0, L"txt", file, 0)) << url;
    EXPECT_TRUE(files_.write_file(narrow(file), "cached")) << narrow(file);
    EXPECT_TRUE(CommitUrlCacheEntryW(wide.c_str(), file, FILETIME{}, FILETIME{}, NORMAL_CACHE_ENTRY,
                                     nullptr, 0, nullptr, nullptr))
        << url;
    return narrow(file);
  }

  // The local file of each entry.
  std::map<std::string, std::string> entries() {
    std::map<std::string, std::string> found;
    for (auto entry = cache_.find_first(); entry; entry = cache_.find_next()) {
      found[entry->source_url] = entry->local_file;
    }
    cache_.find_close();
    return found;
  }

  const std::string first_ = "http://quillvane.invalid/first.txt";
  const std::string second_ = "http://quillvane.invalid/second.txt";
  Win32FileSystem files_;
  Win32UrlCache cache_;

 private:
  std::vector<std::string> made_;
};

TEST_F(UrlCacheTest, EntriesAreListedWithTheirFiles) {
  const std::string first_file = add(first_);
  const std::string second_file = add(second_);
  auto found = entries();
  EXPECT_EQ(found[first_], first_file);
  EXPECT_EQ(found[second_], second_file);
}

TEST_F(UrlCacheTest, AnEntryWithALongAddressIsListedWhole) {
  const std::string url = "http://quillvane.invalid/" + std::string(1500, 'a');
  add(url);
  EXPECT_EQ(entries().count(url), 1U);
}

TEST_F(UrlCacheTest, ARemovedEntryIsGoneWithItsFile) {
  const std::string first_file = add(first_);
  add(second_);
  EXPECT_TRUE(cache_.remove(first_));
  const auto found = entries();
  EXPECT_EQ(found.count(first_), 0U);
  EXPECT_EQ(found.count(second_), 1U);
  EXPECT_FALSE(files_.attributes(first_file).has_value());
}

TEST_F(UrlCacheTest, EntriesCanBeRemovedWhileTheyAreListed) {
  add(first_);
  add(second_);
  for (auto entry = cache_.find_first(); entry; entry = cache_.find_next()) {
    if (entry->source_url == first_ || entry->source_url == second_) {
      EXPECT_TRUE(cache_.remove(entry->source_url));
    }
  }
  cache_.find_close();
  const auto found = entries();
  EXPECT_EQ(found.count(first_) + found.count(second_), 0U);
}

TEST_F(UrlCacheTest, WhatIsNotThereCannotBeRemoved) { EXPECT_FALSE(cache_.remove(first_)); }

TEST_F(UrlCacheTest, NothingFollowsAClosedListing) {
  add(first_);
  EXPECT_TRUE(cache_.find_first().has_value());
  cache_.find_close();
  EXPECT_FALSE(cache_.find_next().has_value());
}

}  // namespace
}  // namespace quillvane
