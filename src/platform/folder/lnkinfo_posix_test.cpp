// Another reader of the format understands the program's links as the program does.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

#include "platform/folder/host_code_page.h"
#include "platform/folder/link_writer.h"
#include "tests/support/link_corpus.h"
#include "tests/support/temp_machine.h"

namespace quillvane {
namespace {

// What a command prints, problems included.
std::string output_of(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen((command + " 2>&1").c_str(), "r"),
                                                   &pclose);
  if (pipe == nullptr) return "(cannot be run)";
  std::string output;
  std::array<char, 4096> block{};
  while (const std::size_t count = fread(block.data(), 1, block.size(), pipe.get())) {
    output.append(block.data(), count);
  }
  return output;
}

class Lnkinfo : public testing::Test {
 protected:
  void SetUp() override {
    if (!output_of("lnkinfo -V").starts_with("lnkinfo")) {
      GTEST_SKIP() << "lnkinfo (of liblnk-utils) is not installed";
    }
  }

  // What it says of a link of the machine.
  [[nodiscard]] std::string says(const std::string& path) const {
    return output_of("LC_ALL=C.UTF-8 lnkinfo -c windows-1252 '" + machine_.host_path(path) + "'");
  }

  TempMachine machine_;
};

// "value" of the first line "\tname\t\t: value" from `from` on; empty when there is none.
std::string value_of(const std::string& output, const std::string& name, std::size_t from = 0) {
  const std::size_t line = output.find("\t" + name + "\t", from);
  if (line == std::string::npos) return {};
  const std::size_t value = output.find(": ", line) + 2;
  return output.substr(value, output.find('\n', value) - value);
}

// The path that the items lead to.
std::string path_of_items_in(const std::string& output) {
  std::string path = value_of(output, "Volume name");
  for (std::size_t at = output.find("\tLong name\t"); at != std::string::npos;
       at = output.find("\tLong name\t", at + 1)) {
    if (!path.ends_with('\\')) path += '\\';
    path += value_of(output, "Long name", at);
  }
  return path;
}

std::string target_in(const std::string& output) {
  const std::string local = value_of(output, "Local path");
  if (!local.empty()) return local;
  return path_of_items_in(output);
}

TEST_F(Lnkinfo, AgreesOnALinkThatTheProgramWrites) {
  machine_.add_file("C:\\Tools\\Gr\u00F6\u00DFe \u0416.exe", 4711);
  const LinkContent content{.target = "C:\\Tools\\Gr\u00F6\u00DFe \u0416.exe",
                            .working_directory = "C:\\Tools",
                            .arguments = "/a \u0416",
                            .icon_file = "C:\\Tools\\a.ico",
                            .icon_index = 3};
  ASSERT_TRUE(machine_.platform().links.write_link("C:\\a.lnk", content));

  const std::string output = says("C:\\a.lnk");

  EXPECT_EQ(value_of(output, "Local path"), content.target) << output;
  EXPECT_EQ(path_of_items_in(output), content.target);
  EXPECT_EQ(value_of(output, "File size"), "4711 bytes");
  EXPECT_EQ(value_of(output, "Description"), "Access Shortcut");
  EXPECT_EQ(value_of(output, "Working directory"), "C:\\Tools");
  EXPECT_EQ(value_of(output, "Command line arguments"), "/a \u0416");
  EXPECT_EQ(value_of(output, "Icon location"), "C:\\Tools\\a.ico");
  EXPECT_EQ(value_of(output, "Icon index"), "3");
}

TEST_F(Lnkinfo, AgreesOnTheCorpus) {
  std::map<std::string_view, int> looked_at;
  for (const CorpusLink& link : stage_link_corpus(machine_)) {
    const std::string output = says(link.path);
    ++looked_at[link.link_class];
    if (link.link_class == "garbage") {
      EXPECT_NE(output.find("Unable to open"), std::string::npos) << link.path << output;
    } else if (link.link_class == "share") {
      EXPECT_TRUE(link.target.starts_with(value_of(output, "Network path"))) << output;
    } else if (link.link_class == "environment path") {
      EXPECT_NE(output.find("%userprofile%"), std::string::npos) << output;
    } else {
      // A reader with room for 254 characters has cut the overlong ones.
      EXPECT_EQ(target_in(output).substr(0, 254), link.target) << link.path << output;
    }
  }
  EXPECT_EQ(looked_at.size(), 12U);
}

}  // namespace
}  // namespace quillvane
