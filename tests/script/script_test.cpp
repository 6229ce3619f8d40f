// The windows driven by scripts: each *.qvs of this folder runs on a machine of its own, through
// the console program's own entry.
//
// A script is staged by remarks at its head:
//   #:machine JSON           the content of machine.json
//   #:folder PATH            a folder
//   #:file BYTES PATH        a file of that length
//   #:line PATH | TEXT       one more line of a text file
//   #:left PATH | TEXT       one more line of what a text file must hold when the script has ended
//   #:line1252, #:left1252   the same in code page 1252
//   #:shipped                the files that ship with the program, beside it
//   #:record PATH | F | F    one more record of a file; a field is its width and its text: "50
//   *.tmp"
//   #:leftrecord PATH | ...  one more record that such a file must hold when the script has ended
//   #:leftempty PATH         a file that must be there without a byte
//   #:text PATH | TEXT       the whole of a text file
//   #:link PATH | TARGET     a shell link, made behind all files
// In texts but those of code page 1252 <CR> is that character, in #:text <LF> too.
// What it must print stands in NAME.expected. A script that ends early has NAME.problem with what
// is told on standard error.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "app/make_machine_host.h"
#include "machine/data_files.h"
#include "platform/folder/folder_machine.h"
#include "platform/folder/host_code_page.h"
#include "platform/folder/machine_json.h"
#include "platform/folder/machine_staging.h"
#include "platform/virtual/queued_dialogs.h"
#include "support/text.h"
#include "tests/script/expected_output.h"
#include "tests/support/temp_folder.h"
#include "view/console/console.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

const fs::path kFolder = QUILLVANE_SCRIPTS;

std::string text_of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> script_names() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kFolder)) {
    if (entry.path().extension() == ".qvs") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// A machine made by the program itself, with what the remarks of a script ask for.
class StagedMachine {
 public:
  explicit StagedMachine(const std::string& script) {
    EXPECT_EQ(run({"machine", "create", dir()}), 0) << err;
    std::istringstream lines(script);
    std::string line;
    while (std::getline(lines, line)) {
      if (line.starts_with("#:")) stage(line.substr(2));
    }
    for (const auto& [path, text] : texts_) put(path, {.text = text, .bytes = 0, .time = {}});
    make_links();
  }

  // Runs the console program; `out` and `err` hold what it wrote.
  int run(const std::vector<std::string>& words) {
    std::istringstream in;
    std::ostringstream out_stream;
    std::ostringstream err_stream;
    ConsoleIo io{in, out_stream, err_stream};
    const int status = run_console(words, io, *host_);
    out = out_stream.str();
    err = err_stream.str();
    return status;
  }

  [[nodiscard]] std::string dir() const { return folder_.path() + "/machine"; }

  // What the files hold that the script tells the end of, by path, as it is and as it shall be.
  using Texts = std::map<std::string, std::string>;
  [[nodiscard]] Texts left() const {
    Texts texts;
    for (const auto& [path, text] : shall_be_left_) {
      std::string place = path.substr(2);
      std::replace(place.begin(), place.end(), '\\', '/');
      texts[path] = text_of(dir() + "/drive_c" + place);
    }
    return texts;
  }
  [[nodiscard]] const Texts& shall_be_left() const { return shall_be_left_; }

  std::string out;
  std::string err;

 private:
  void stage(const std::string& remark) {
    std::istringstream words(remark);
    std::string what;
    std::string rest;
    words >> what >> std::ws;
    if (what == "file") {
      std::uint64_t bytes = 0;
      words >> bytes >> std::ws;
      std::getline(words, rest);
      put(rest, {.text = {}, .bytes = bytes, .time = {}});
    } else if (std::getline(words, rest); rest.find(" | ") != std::string::npos) {
      stage_text(what, rest.substr(0, rest.find(" | ")), rest.substr(rest.find(" | ") + 3));
    } else if (what == "shipped") {
      for (const DataFile& file : data_files()) {
        put(state().program_folder + "\\" + std::string(file.name),
            {.text = file.bytes, .bytes = 0, .time = {}});
      }
    } else if (what == "machine") {
      folder_.write("machine/machine.json", rest);
    } else if (what == "leftempty") {
      shall_be_left_[rest] = "";
    } else if (what == "folder") {
      EXPECT_FALSE(stage_folder(state(), rest)) << rest;
    } else {
      FAIL() << "a remark that stages nothing: " << remark;
    }
  }

  void make_links() {
    if (links_.empty()) return;
    auto opened = FolderMachine::open(dir());
    ASSERT_TRUE(std::holds_alternative<std::unique_ptr<FolderMachine>>(opened));
    FolderMachine& machine = *std::get<std::unique_ptr<FolderMachine>>(opened);
    QueuedDialogs dialogs(machine.effects());
    const Platform platform = machine.platform(dialogs);
    for (const auto& [path, target] : links_) {
      EXPECT_FALSE(stage_folder(state(), path.substr(0, path.rfind('\\')))) << path;
      EXPECT_TRUE(platform.links.write_link(path, {.target = target})) << path;
    }
  }

  void stage_text(const std::string& what, const std::string& path, const std::string& text) {
    if (what == "text") {
      texts_[path] = replace_all(replace_all(text, "<CR>", "\r"), "<LF>", "\n");
      return;
    }
    if (what == "link") {
      links_[path] = text;
      return;
    }
    Texts& texts = what.starts_with("left") ? shall_be_left_ : texts_;
    if (what.ends_with("record")) {
      for (const std::string& field : Split(text, " | ")) texts[path] += record_field(field);
    } else if (what == "line1252" || what == "left1252") {
      const auto bytes = host_code_page(1252)->encode(text);
      ASSERT_TRUE(bytes) << text;
      texts[path] += *bytes + "\r\n";
    } else {
      EXPECT_TRUE(what == "line" || what == "left") << what;
      texts[path] += replace_all(text, "<CR>", "\r") + "\r\n";
    }
  }

  // "50 *.tmp": that text, filled up with blanks.
  static std::string record_field(const std::string& field) {
    const auto blank = std::min(field.find(' '), field.size());
    std::string text = field.substr(std::min(blank + 1, field.size()));
    text.resize(std::stoul(field), ' ');
    return text;
  }

  void put(const std::string& path, const StagedContent& content) {
    EXPECT_FALSE(stage_file(state(), path, content)) << path;
  }

  MachineState state() {
    auto loaded = load_machine_json(dir());
    const auto* error = std::get_if<std::string>(&loaded);
    EXPECT_EQ(error, nullptr) << (error == nullptr ? "" : *error);
    return error == nullptr ? std::get<MachineState>(std::move(loaded)) : MachineState();
  }

  TempFolder folder_;
  std::unique_ptr<MachineHost> host_ = make_machine_host();
  Texts texts_;
  Texts links_;  // targets
  Texts shall_be_left_;
};

class Script : public testing::TestWithParam<std::string> {};

TEST_P(Script, Behaves) {
  const fs::path script = kFolder / (GetParam() + ".qvs");
  const std::string problem = text_of(kFolder / (GetParam() + ".problem"));
  StagedMachine machine(text_of(script));

  const int status = machine.run({"script", script.string(), "--machine", machine.dir()});

  const std::string expected = text_of(kFolder / (GetParam() + ".expected"));
  const std::string differs = difference(expected_values(expected), printed_values(machine.out));
  EXPECT_TRUE(differs.empty()) << differs;
  EXPECT_EQ(machine.left(), machine.shall_be_left());
  EXPECT_EQ(machine.err, problem);
  EXPECT_EQ(status, problem.empty() ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(OfFolder, Script, testing::ValuesIn(script_names()),
                         [](const auto& name) { return name.param; });

TEST(ScriptFolder, EachExpectationHasItsScript) {
  for (const auto& entry : fs::directory_iterator(kFolder)) {
    const auto kind = entry.path().extension();
    if (kind != ".expected" && kind != ".problem") continue;
    EXPECT_TRUE(fs::exists(fs::path(entry.path()).replace_extension(".qvs"))) << entry.path();
  }
  EXPECT_FALSE(script_names().empty());
}

}  // namespace
}  // namespace quillvane
