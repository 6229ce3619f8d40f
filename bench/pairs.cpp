#include "bench/pairs.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <utility>

#include "bench/make_tree.h"

namespace quillvane::bench {

namespace {

bool read_number(std::string_view text, std::uint32_t& number) {
  const auto end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  return read.ec == std::errc() && read.ptr == end && number > 0;
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double bytes_per_file(const Measured& measured) {
  return static_cast<double>(measured.peak_bytes) / static_cast<double>(measured.files);
}

// What the pairs of one run tell.
struct Results {
  std::vector<double> yardstick_seconds;
  std::vector<double> work_seconds;
  std::vector<double> ratios;
  std::vector<double> yardstick_bytes;  // a file
  std::vector<double> work_bytes;

  void add(const Measured& yardstick, const Measured& work) {
    yardstick_seconds.push_back(yardstick.seconds);
    work_seconds.push_back(work.seconds);
    ratios.push_back(work.seconds / yardstick.seconds);
    yardstick_bytes.push_back(bytes_per_file(yardstick));
    work_bytes.push_back(bytes_per_file(work));
    std::printf("yardstick %.3f s, work %.3f s, ratio %.3f\n", yardstick.seconds, work.seconds,
                ratios.back());
  }
  void print(const Options& options, std::string_view subject) const {
    std::printf(
        "%.*s: %u files, %u threads, lists of %u MB, medians: yardstick %.3f s, work %.3f s, "
        "ratio %.3f, bytes a file %.1f and %.1f\n",
        static_cast<int>(subject.size()), subject.data(), options.files, options.threads,
        options.list_megabytes, median(yardstick_seconds), median(work_seconds), median(ratios),
        median(yardstick_bytes), median(work_bytes));
  }
};

}  // namespace

namespace {

bool read_shape(std::string_view text, TreeShape& shape) {
  constexpr std::pair<std::string_view, TreeShape> kShapes[] = {{"tree", TreeShape::kTree},
                                                                {"flat", TreeShape::kFlat},
                                                                {"folders", TreeShape::kFolders},
                                                                {"deep", TreeShape::kDeep}};
  for (const auto& [name, named] : kShapes) {
    if (text == name) shape = named;
    if (text == name) return true;
  }
  return false;
}

}  // namespace

bool read_options(int count, char** words, Options& options) {
  for (int i = 1; i + 1 < count; i += 2) {
    const std::string_view name = words[i];
    const std::string_view value = words[i + 1];
    const bool good = name == "--files"     ? read_number(value, options.files)
                      : name == "--threads" ? read_number(value, options.threads)
                      : name == "--pairs"   ? read_number(value, options.pairs)
                      : name == "--lists"   ? read_number(value, options.list_megabytes)
                      : name == "--names"   ? read_number(value, options.names)
                      : name == "--suite"   ? read_number(value, options.suite)
                      : name == "--shape"   ? read_shape(value, options.shape)
                      : name == "--dir"     ? !(options.folder = value).empty()
                                            : false;
    if (!good) return false;
  }
  return count % 2 == 1 && !options.folder.empty();
}

bool have_tree(const Options& options) {
  const auto made = measure({.work = [&] {
    return make_tree({options.folder, options.files, /*seed=*/1, options.shape})
               ? std::size_t{options.files}
               : 0;
  }});
  return made && made->files == options.files;
}

int run_pairs(const Options& options, std::string_view subject,
              const std::function<std::size_t()>& yardstick,
              const std::function<std::size_t()>& work) {
  return run_numbered_pairs(
      options, subject, [&](std::uint32_t) { return Task{.work = yardstick}; },
      [&](std::uint32_t) { return Task{.work = work}; });
}

int run_numbered_pairs(const Options& options, std::string_view subject,
                       const std::function<Task(std::uint32_t)>& yardstick,
                       const std::function<Task(std::uint32_t)>& work) {
  Results results;
  for (std::uint32_t pair = 0; pair <= options.pairs; ++pair) {
    const auto of_yardstick = measure(yardstick(pair));
    const auto of_work = measure(work(pair));
    if (!of_yardstick || !of_work || of_yardstick->files != options.files ||
        of_work->files != options.files) {
      std::fprintf(stderr, "not all of the %u files were found\n", options.files);
      return 1;
    }
    if (pair > 0) results.add(*of_yardstick, *of_work);
  }
  results.print(options, subject);
  return 0;
}

}  // namespace quillvane::bench
