// Shell links: what one writer puts into a file, any reader gets out of it.
#include <string>

#include "platform/folder/host_code_page.h"
#include "platform/folder/link_file.h"
#include "platform/folder/link_writer.h"
#include "platform/folder/machine_environment.h"
#include "tests/contract/contract_test.h"
#include "tests/support/published_link.h"

namespace quillvane {
namespace {

using std::literals::operator""sv;

class LinksContract : public ContractTest {
 protected:
  [[nodiscard]] bool read(const std::string& name, LinkContent& content) {
    return platform.links.read_link(path_of(name), content);
  }
  [[nodiscard]] bool write(const std::string& name, const LinkContent& content) {
    return platform.links.write_link(path_of(name), content);
  }
  // As the portable reader understands the file.
  [[nodiscard]] std::optional<LinkContent> parsed(const std::string& name) const {
    const FileContent bytes = platform.files.read_file(path_of(name));
    if (!bytes) return std::nullopt;
    return parse_link(*bytes, *host_code_page(1252), MachineEnvironment(MachineState()));
  }
  [[nodiscard]] LinkContent to(const std::string& name) const {
    LinkContent content;
    content.target = path_of(name);
    return content;
  }
  void add_target(const std::string& name) { machine->add_file(path_of(name), "12345"); }
};

TEST_F(LinksContract, AWrittenLinkIsReadAsItWasWritten) {
  add_target("tool.exe");
  LinkContent written = to("tool.exe");
  written.working_directory = machine->folder();
  written.arguments = "/a \"b c\" %1";
  written.icon_file = path_of("tool.exe");
  written.icon_index = -7;
  written.show_command = 3;
  ASSERT_TRUE(write("a.lnk", written));
  LinkContent content;
  ASSERT_TRUE(read("A.LNK", content));
  for (const LinkContent& link : {content, parsed("a.lnk").value()}) {
    EXPECT_TRUE(link.has_target);
    EXPECT_EQ(link.target, written.target);
    EXPECT_EQ(link.working_directory, written.working_directory);
    EXPECT_EQ(link.arguments, written.arguments);
    EXPECT_EQ(link.icon_file, written.icon_file);
    EXPECT_EQ(link.icon_index, -7);
  }
  EXPECT_EQ(parsed("a.lnk").value().show_command, 3);
  EXPECT_EQ(content.show_command, machine->reads_show_commands() ? 3 : 1);
}

TEST_F(LinksContract, ALinkOfThePortableWriterIsReadByThisMachine) {
  add_target("tool.exe");
  LinkContent written = to("tool.exe");
  written.arguments = "/b";
  written.show_command = 7;
  const auto bytes = link_to_file(written, {kAttributeArchive, 5}, *host_code_page(1252));
  ASSERT_TRUE(bytes);
  machine->add_file(path_of("a.lnk"), *bytes);
  LinkContent content;
  ASSERT_TRUE(read("a.lnk", content));
  EXPECT_EQ(content.target, written.target);
  EXPECT_EQ(content.arguments, "/b");
  EXPECT_EQ(content.working_directory, "");
  EXPECT_EQ(content.icon_file, "");
  EXPECT_EQ(content.show_command, machine->reads_show_commands() ? 7 : 1);
}

TEST_F(LinksContract, ThePublishedExampleIsRead) {
  machine->add_file(path_of("a.lnk"), published_link());
  LinkContent content;
  ASSERT_TRUE(read("a.lnk", content));
  EXPECT_EQ(content.target, "C:\\test\\a.txt");
  EXPECT_EQ(content.working_directory, "C:\\test");
}

TEST_F(LinksContract, LettersAboveAsciiComeBack) {
  add_target("Gr\u00F6\u00DFe.txt");
  ASSERT_TRUE(write("\u00C4.lnk", to("Gr\u00F6\u00DFe.txt")));
  LinkContent content;
  ASSERT_TRUE(read("\u00C4.lnk", content));
  EXPECT_EQ(content.target, path_of("Gr\u00F6\u00DFe.txt"));
  EXPECT_EQ(parsed("\u00C4.lnk").value().target, path_of("Gr\u00F6\u00DFe.txt"));
}

TEST_F(LinksContract, AFolderIsATargetLikeAFile) {
  machine->add_folder(path_of("sub"));
  ASSERT_TRUE(write("a.lnk", to("sub")));
  LinkContent content;
  ASSERT_TRUE(read("a.lnk", content));
  EXPECT_EQ(content.target, path_of("sub"));
}

TEST_F(LinksContract, WhatIsStoredIsToldThoughTheTargetIsGone) {
  add_target("tool.exe");
  ASSERT_TRUE(write("a.lnk", to("tool.exe")));
  ASSERT_EQ(platform.files.remove_file(path_of("tool.exe")), RemoveResult::kRemoved);
  LinkContent content;
  ASSERT_TRUE(read("a.lnk", content));
  EXPECT_EQ(content.target, path_of("tool.exe"));
}

TEST_F(LinksContract, AShowCommandThatTheFormatDoesNotHaveIsTheNormalOne) {
  add_target("tool.exe");
  LinkContent written = to("tool.exe");
  written.show_command = 5;
  ASSERT_TRUE(write("a.lnk", written));
  LinkContent content;
  ASSERT_TRUE(read("a.lnk", content));
  EXPECT_EQ(content.show_command, 1);
}

TEST_F(LinksContract, AnOldLinkIsReplacedWhole) {
  add_target("old.exe");
  add_target("new.exe");
  LinkContent old = to("old.exe");
  old.arguments = "/" + std::string(2000, 'x');
  ASSERT_TRUE(write("a.lnk", old));
  ASSERT_TRUE(write("a.lnk", to("new.exe")));
  LinkContent content;
  ASSERT_TRUE(read("a.lnk", content));
  EXPECT_EQ(content.target, path_of("new.exe"));
  EXPECT_EQ(content.arguments, "");
}

TEST_F(LinksContract, ALinkThatMayNotBeReplacedStaysAsItWas) {
  add_target("new.exe");
  machine->add_file(path_of("a.lnk"), "old");
  ASSERT_TRUE(platform.files.set_attributes(path_of("a.lnk"), kAttributeReadOnly));
  EXPECT_FALSE(write("a.lnk", to("new.exe")));
  machine->add_file(path_of("held.lnk"), "old");
  machine->hold_open(path_of("held.lnk"));
  EXPECT_FALSE(write("held.lnk", to("new.exe")));
  EXPECT_EQ(platform.files.read_file(path_of("a.lnk")), "old");
  EXPECT_EQ(platform.files.read_file(path_of("held.lnk")), "old");
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), "*.*")),
            (Names{"a.lnk", "held.lnk", "new.exe"}));
}

TEST_F(LinksContract, NothingIsWrittenWhereNothingCanBe) {
  add_target("tool.exe");
  EXPECT_FALSE(write("missing\\a.lnk", to("tool.exe")));
  EXPECT_FALSE(platform.links.write_link("a.lnk", to("tool.exe")));
  EXPECT_FALSE(platform.links.write_link("", to("tool.exe")));
}

TEST_F(LinksContract, OverlongTextsAreCutAt254Characters) {
  add_target("tool.exe");
  LinkContent written = to("tool.exe");
  written.arguments = std::string(300, 'x');
  ASSERT_TRUE(write("a.lnk", written));
  LinkContent content;
  ASSERT_TRUE(read("a.lnk", content));
  EXPECT_EQ(content.arguments, std::string(254, 'x'));
  // Nothing of a letter that does not fit whole: 253 and a pair.
  written.arguments = std::string(253, 'x') + "\U0001F600";
  ASSERT_TRUE(write("b.lnk", written));
  ASSERT_TRUE(read("b.lnk", content));
  EXPECT_EQ(content.arguments, std::string(253, 'x'));
}

TEST_F(LinksContract, AFileThatIsNoLinkIsNotRead) {
  machine->add_file(path_of("text.lnk"), std::string(500, 'x'));
  machine->add_file(path_of("empty.lnk"), "");
  machine->add_file(path_of("torn.lnk"), published_link().substr(0, 200));
  machine->add_folder(path_of("folder.lnk"));
  for (const char* name : {"text.lnk", "empty.lnk", "torn.lnk", "folder.lnk", "missing.lnk"}) {
    LinkContent content;
    EXPECT_FALSE(read(name, content)) << name;
    EXPECT_FALSE(content.has_target) << name;
    EXPECT_EQ(content.target, "") << name;
  }
}

TEST_F(LinksContract, ALinkToAPlaceOfTheShellHasAnEmptyTarget) {
  // The Control Panel: {21EC2020-3AEA-1069-A2DD-08002B30309D}.
  const LinkParts parts{.items = items_of_class(
                            "\x20\x20\xEC\x21\xEA\x3A\x69\x10\xA2\xDD\x08\x00\x2B\x30\x30\x9D"sv)};
  machine->add_file(path_of("a.lnk"), link_bytes(parts).value());
  LinkContent content;
  ASSERT_TRUE(read("a.lnk", content));
  EXPECT_TRUE(content.has_target);
  EXPECT_EQ(content.target, "");
}

}  // namespace
}  // namespace quillvane
