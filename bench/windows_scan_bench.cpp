// Measures a whole scan on Windows calls, from its start to the filled list, against a bare walk of
// the same tree that reads each folder once by FindFirstFileExW and keeps names, sizes and times:
//
//   quillvane_bench_windows.exe C:\tree 9
//
// The folder is there already; the other programs make one. Both run in turn in this process.
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/form7.h"
#include "core/program.h"
#include "platform/virtual/queued_dialogs.h"
#include "platform/virtual/virtual_loop.h"
#include "platform/win32/win32_machine.h"

namespace quillvane::bench {

namespace {

struct BareFile {
  std::wstring name;
  std::uint64_t size;
  FILETIME created;
  FILETIME accessed;
  FILETIME modified;
};

void walk_bare(const std::wstring& folder, std::vector<BareFile>& files) {
  WIN32_FIND_DATAW found;
  HANDLE listing = FindFirstFileExW((folder + L"*").c_str(), FindExInfoBasic, &found,
                                    FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  if (listing == INVALID_HANDLE_VALUE) return;
  std::vector<std::wstring> folders;
  do {
    const std::wstring name = found.cFileName;
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
      files.push_back({name, std::uint64_t{found.nFileSizeHigh} << 32U | found.nFileSizeLow,
                       found.ftCreationTime, found.ftLastAccessTime, found.ftLastWriteTime});
    } else if (name != L"." && name != L"..") {
      folders.push_back(folder + name + L"\\");
    }
  } while (FindNextFileW(listing, &found) != 0);
  FindClose(listing);
  for (const std::wstring& below : folders) walk_bare(below, files);
}

// All files of the tree are hits of one category.
std::size_t scan(Win32Machine& machine, const std::string& folder) {
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  VirtualLoop loop(FileTime{});
  Program program(machine.platform(dialogs, loop));
  program.start("");
  Form7& form = program.main_window();
  form.srch(folder, "*.*", 3);
  form.loadfirstscan();
  return static_cast<std::size_t>(form.view5.count());
}

double seconds(const std::function<void()>& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

int run(const std::string& folder, int pairs) {
  const std::wstring wide(folder.begin(), folder.end());
  Win32Machine machine;
  std::vector<double> ratios;
  std::size_t found = 0;
  for (int pair = 0; pair <= pairs; ++pair) {
    std::vector<BareFile> files;
    const double yardstick = seconds([&] { walk_bare(wide + L"\\", files); });
    const double work = seconds([&] { found = scan(machine, folder); });
    if (found == 0 || found != files.size()) {
      std::fprintf(stderr, "the scan found %zu files, the walk %zu\n", found, files.size());
      return 1;
    }
    std::printf("yardstick %.3f s, scan %.3f s, ratio %.3f\n", yardstick, work, work / yardstick);
    // The first pair only warms the host's memory of the tree.
    if (pair > 0) ratios.push_back(work / yardstick);
  }
  std::sort(ratios.begin(), ratios.end());
  std::printf("%zu files, median ratio %.3f\n", found, ratios[ratios.size() / 2]);
  return 0;
}

}  // namespace

}  // namespace quillvane::bench

int main(int count, char** words) {
  const int pairs = count == 3 ? std::atoi(words[2]) : 0;
  if (pairs < 1) {
    std::fprintf(stderr, "usage: %s FOLDER PAIRS\n", words[0]);
    return 1;
  }
  return quillvane::bench::run(words[1], pairs);
}
