#include "bench/make_tree.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <random>
#include <vector>

namespace quillvane::bench {

namespace {

constexpr std::uint32_t kFilesPerFolder = 10;
constexpr std::uint32_t kDeepest = 12;
constexpr std::uint32_t kLargestFile = 1U << 20U;

class Random {
 public:
  explicit Random(std::uint32_t seed) : engine_(seed) {}

  // From first to last, both included. Not a standard distribution: those differ by library.
  std::uint32_t between(std::uint32_t first, std::uint32_t last) {
    return first + static_cast<std::uint32_t>(engine_()) % (last - first + 1);
  }

  // Letters in both cases and digits, so that the order of names is not that of the bytes. The
  // number in front keeps the names of a folder apart.
  std::string name(std::uint32_t number, std::uint32_t length) {
    static constexpr char kLetters[] =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-";
    std::string text;
    text += kLetters[between(0, 51)];
    text += std::to_string(number) + "_";
    while (text.size() < length) text += kLetters[between(0, 63)];
    return text;
  }

 private:
  std::mt19937 engine_;
};

struct Folder {
  std::string path;
  std::uint32_t depth;
};

bool report(const std::string& path) {
  std::fprintf(stderr, "%s: %s\n", path.c_str(), std::strerror(errno));
  return false;
}

bool make_file(const std::string& path, std::uint32_t bytes) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (file < 0) return report(path);
  const bool sized = ftruncate(file, static_cast<off_t>(bytes)) == 0;
  close(file);
  return sized || report(path);
}

bool make_files(const Folder& folder, std::uint32_t count, Random& random) {
  static constexpr const char* kEndings[] = {".tmp", ".log", ".dat", ".jpeg", ""};
  for (std::uint32_t i = 0; i < count; ++i) {
    const std::uint32_t length = random.between(8, 60);
    const std::string ending = kEndings[random.between(0, 4)];
    const auto base = length - static_cast<std::uint32_t>(ending.size());
    const std::string path = folder.path + "/" + random.name(i, base) + ending;
    if (!make_file(path, random.between(0, kLargestFile))) return false;
  }
  return true;
}

bool make_folder(const std::string& path) { return mkdir(path.c_str(), 0755) == 0 || report(path); }

bool make_one_file_a_folder(const Folder& top, std::uint32_t count, Random& random) {
  for (std::uint32_t i = 0; i < count; ++i) {
    const Folder folder{top.path + "/" + random.name(i, 12), 1};
    if (!make_folder(folder.path) || !make_files(folder, 1, random)) return false;
  }
  return true;
}

// Folders of one letter and short file names, so that the deepest path stays below 260 characters.
bool make_deep(Folder folder, std::uint32_t count) {
  constexpr std::uint32_t kLevels = 100;
  for (std::uint32_t level = 1; level <= kLevels; ++level) {
    folder = {folder.path + "/" + static_cast<char>('a' + level % 26), level};
    if (!make_folder(folder.path)) return false;
    const std::uint32_t here = count / (kLevels - level + 1);
    for (std::uint32_t i = 0; i < here; ++i) {
      if (!make_file(folder.path + "/" + std::to_string(i) + ".tmp", i)) return false;
    }
    count -= here;
  }
  return true;
}

bool make_tree_of_folders(const TreePlan& plan, Random& random);

bool make_contents(const TreePlan& plan) {
  Random random(plan.seed);
  const Folder top{plan.folder + "/tree", 0};
  switch (plan.shape) {
    case TreeShape::kTree:
      return make_tree_of_folders(plan, random);
    case TreeShape::kFlat:
      return make_folder(top.path) && make_files(top, plan.files, random);
    case TreeShape::kFolders:
      return make_folder(top.path) && make_one_file_a_folder(top, plan.files, random);
    case TreeShape::kDeep:
      return make_folder(top.path) && make_deep(top, plan.files);
  }
  return false;
}

bool make_tree_of_folders(const TreePlan& plan, Random& random) {
  std::vector<Folder> folders = {{plan.folder + "/tree", 0}};
  if (mkdir(folders[0].path.c_str(), 0755) != 0) return report(folders[0].path);
  std::uint32_t left = plan.files;
  while (left > 0) {
    const std::uint32_t count = std::min(left, random.between(5, 2 * kFilesPerFolder - 5));
    if (!make_files(folders.back(), count, random)) return false;
    left -= count;
    const auto number = static_cast<std::uint32_t>(folders.size());
    const Folder* parent = nullptr;
    do {
      parent = &folders[random.between(0, number - 1)];
    } while (parent->depth == kDeepest);
    Folder next{parent->path + "/" + random.name(number, random.between(8, 12)), parent->depth + 1};
    if (mkdir(next.path.c_str(), 0755) != 0) return report(next.path);
    folders.push_back(std::move(next));
  }
  return true;
}

}  // namespace

bool make_tree(const TreePlan& plan) {
  const std::string mark = plan.folder + "/made";
  const std::string made = std::to_string(plan.files) + " " + std::to_string(plan.seed) + " " +
                           std::to_string(static_cast<int>(plan.shape));
  std::string found;
  if (std::getline(std::ifstream(mark), found) && found == made) return true;
  if (mkdir(plan.folder.c_str(), 0755) != 0) return report(plan.folder);
  if (!make_contents(plan)) return false;
  std::ofstream(mark) << made << "\n";
  return true;
}

}  // namespace quillvane::bench
