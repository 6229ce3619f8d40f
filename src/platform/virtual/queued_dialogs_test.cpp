#include "platform/virtual/queued_dialogs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillvane {
namespace {

constexpr std::uint32_t kConfirmStyle = kBoxYesNo | kBoxIconInformation;

TEST(QueuedDialogs, AMessageIsAnsweredOkWhenNothingIsQueued) {
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  EXPECT_EQ(dialogs.message_box("Done.", "Quillvane", kBoxIconInformation), Answer::kOk);
  EXPECT_EQ(dialogs.take_boxes(),
            (std::vector<ShownBox>{{"message", "Done.", "Quillvane", 64, "ok"}}));
}

TEST(QueuedDialogs, AQuestionIsAnsweredNoWhenNothingIsQueued) {
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  EXPECT_EQ(dialogs.message_box("Sure?", "Please Confirm", kConfirmStyle), Answer::kNo);
  EXPECT_EQ(dialogs.take_boxes(),
            (std::vector<ShownBox>{{"question", "Sure?", "Please Confirm", 68, "no"}}));
}

TEST(QueuedDialogs, QueuedAnswersAreGivenInTheirOrderOneABox) {
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  dialogs.answer(Answer::kYes);
  dialogs.answer(Answer::kCancel);
  EXPECT_EQ(dialogs.message_box("1", "", kConfirmStyle), Answer::kYes);
  EXPECT_EQ(dialogs.message_box("2", "", 0), Answer::kCancel);
  EXPECT_EQ(dialogs.message_box("3", "", kConfirmStyle), Answer::kNo);
}

TEST(QueuedDialogs, AnOkQueuedForAQuestionIsGivenAsItStands) {
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  dialogs.answer(Answer::kOk);
  EXPECT_EQ(dialogs.message_box("Sure?", "", kConfirmStyle), Answer::kOk);
  EXPECT_EQ(dialogs.take_boxes().at(0).answer, "ok");
}

TEST(QueuedDialogs, ASystemModalQuestionIsAQuestion) {
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  const std::uint32_t style = kBoxYesNo | kBoxIconQuestion | kBoxSystemModal;
  EXPECT_EQ(dialogs.message_box("Close it?", "confirmation", style), Answer::kNo);
}

TEST(QueuedDialogs, AFileToOpenIsTheNextPath) {
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  dialogs.answer_path("C:\\a.txt");
  EXPECT_EQ(dialogs.open_file({"Choose", "*.*|*.*", "b.txt"}), "C:\\a.txt");
  EXPECT_EQ(dialogs.open_file({"Choose", "", ""}), "");
  EXPECT_EQ(dialogs.take_boxes(),
            (std::vector<ShownBox>{{"open", "", "Choose", 0, "C:\\a.txt", "b.txt", "*.*|*.*", ""},
                                   {"open", "", "Choose", 0, "", "", "", ""}}));
}

TEST(QueuedDialogs, AnInputIsTheNextTextAndWithoutOneItIsCancelled) {
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  dialogs.answer_input("mine");
  EXPECT_EQ(dialogs.input_box("Name:", "Naming", "old"), "mine");
  EXPECT_EQ(dialogs.input_box("Name:", "Naming", ""), "");
  EXPECT_EQ(dialogs.take_boxes(),
            (std::vector<ShownBox>{{"input", "Name:", "Naming", 0, "mine", "", "", "old"},
                                   {"input", "Name:", "Naming", 0, "", "", "", ""}}));
}

TEST(QueuedDialogs, BoxesAreTakenOnce) {
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  dialogs.message_box("1", "", 0);
  EXPECT_EQ(dialogs.take_boxes().size(), 1U);
  EXPECT_TRUE(dialogs.take_boxes().empty());
}

TEST(QueuedDialogs, EachBoxIsAnEffect) {
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  dialogs.message_box("Done.", "Quillvane", 0);
  dialogs.message_box("Sure?", "", kConfirmStyle);
  EXPECT_EQ(effects.take(), (std::vector<Effect>{{"box", {{"text", std::string("Done.")}}},
                                                 {"box", {{"text", std::string("Sure?")}}}}));
}

TEST(QueuedDialogs, FolderAndSaveDialogsTakeTheQueuedPathsInTheirOrder) {
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  dialogs.answer_path("C:\\Folder");
  dialogs.answer_path("C:\\a.txt");

  EXPECT_EQ(dialogs.browse_folder("Select a folder:", 1, ""), "C:\\Folder");
  EXPECT_EQ(dialogs.save_file({"Save As", "all|*.*", "*.txt"}), "C:\\a.txt");
  EXPECT_EQ(dialogs.save_file({"Save As", "all|*.*", "*.txt"}), "");

  EXPECT_EQ(dialogs.take_boxes(),
            (std::vector<ShownBox>{{"folder", "Select a folder:", "", 1, "C:\\Folder"},
                                   {"save", "", "Save As", 0, "C:\\a.txt", "*.txt", "all|*.*"},
                                   {"save", "", "Save As", 0, "", "*.txt", "all|*.*"}}));
}

TEST(QueuedDialogs, AnswersHaveNames) {
  EXPECT_EQ(answer_name(Answer::kOk), "ok");
  EXPECT_EQ(answer_name(Answer::kCancel), "cancel");
  EXPECT_EQ(answer_name(Answer::kYes), "yes");
  EXPECT_EQ(answer_name(Answer::kNo), "no");
}

}  // namespace
}  // namespace quillvane
