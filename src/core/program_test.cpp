// Windows that keep the program waiting.
#include "core/program.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

// The program with a user who does `acts` in turn while a window waits for him.
struct Waiting : ScanFixture {
  Waiting() {
    start();
    machine.loop().set_user([this](const std::function<bool()>& done) {
      while (!done() && !acts.empty()) {
        const auto act = acts.front();
        acts.erase(acts.begin());
        act();
      }
    });
  }

  ModalWindow window{"Form1"};
  std::vector<std::function<void()>> acts;
};

TEST(ShowModal, WaitsUntilTheWindowIsClosed) {
  Waiting waiting;
  bool was_visible = false;
  waiting.acts = {[&] { was_visible = waiting.window.visible(); }, [&] { waiting.window.close(); },
                  [] { ADD_FAILURE() << "the window was closed"; }};

  waiting.program->windows.show(waiting.window);

  EXPECT_TRUE(was_visible);
  EXPECT_FALSE(waiting.window.visible());
  EXPECT_EQ(waiting.acts.size(), 1U);
  EXPECT_FALSE(waiting.program->ended());
}

TEST(ShowModal, IsFoundByItsNameWhileItWaits) {
  Waiting waiting;
  const Window* found = nullptr;
  waiting.acts = {[&] { found = waiting.program->find_window("FORM1"); },
                  [&] { waiting.window.close(); }};
  EXPECT_EQ(waiting.program->find_window("Form1"), nullptr);

  waiting.program->windows.show(waiting.window);

  EXPECT_EQ(found, &waiting.window);
  EXPECT_EQ(waiting.program->find_window("Form1"), nullptr);
  EXPECT_TRUE(Program::has_window("form1"));
  EXPECT_FALSE(Program::has_window("Form99"));
}

TEST(ShowModal, EndsWithTheProgram) {
  Waiting waiting;
  waiting.acts = {[&] { waiting.program->session.end(); }};
  waiting.program->windows.show(waiting.window);
  EXPECT_FALSE(waiting.window.unloaded());
  EXPECT_FALSE(waiting.program->session.stopped());
}

TEST(ShowModal, StopsTheProgramWhenNobodyIsLeftToCloseTheWindow) {
  Waiting waiting;
  waiting.program->windows.show(waiting.window);
  EXPECT_TRUE(waiting.program->session.stopped());
}

TEST(ShowModal, KeepsTheViewUntilTheWindowIsClosed) {
  Waiting waiting;
  std::weak_ptr<void> view;
  Window* attached = nullptr;
  waiting.program->windows.attach_view = [&](Window& window) {
    attached = &window;
    EXPECT_FALSE(window.visible());
    auto made = std::make_shared<int>(1);
    view = made;
    return made;
  };
  bool had_view = false;
  waiting.acts = {[&] { had_view = !view.expired(); }, [&] { waiting.window.close(); }};

  waiting.program->windows.show(waiting.window);

  EXPECT_EQ(attached, &waiting.window);
  EXPECT_TRUE(had_view);
  EXPECT_TRUE(view.expired());
}

}  // namespace
}  // namespace quillvane
