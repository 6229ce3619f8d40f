// A program of one small window for tests of the script commands, and a run of a script on it.
#pragma once

#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "forms/buttons.h"
#include "forms/list_box.h"
#include "forms/list_view.h"
#include "forms/simple_controls.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/toolbar.h"
#include "forms/tree_view.h"
#include "platform/unicode_case.h"
#include "tests/support/temp_console_machine.h"
#include "view/console/script/driven_program.h"
#include "view/console/script/script_runner.h"

namespace quillvane {

// Controls of each kind; what their events do is the test's.
class SmallWindow final : public Window {
 public:
  explicit SmallWindow(MessageLoop& loop)
      : Window("Form7"),
        go(*this, "cmd_go"),
        info(*this, "Label1(1)"),
        agree(*this, "Check1"),
        first(*this, "Option1"),
        input(*this, "Text1"),
        bar(*this, "Toolbar1"),
        list(*this, "view1", {"File Name", "Size"}),
        tree(*this, "Tv1"),
        plain(*this, "List1"),
        page(*this, "Frame1"),
        entry(*this, "a1", "Add"),
        hidden_entry(*this, "a2", "Edit"),
        menu(*this, "a", "foption", {&entry, &hidden_entry}),
        tick(*this, "Timer1", loop, std::chrono::milliseconds(500)) {
    add_field("files", [this] { return PropertyValue(files); });
  }

  void close() override { closed = true; }

  Button go;
  Label info;
  CheckBox agree;
  OptionButton first;
  TextBox input;
  Toolbar bar;
  ListView list;
  TreeView tree;
  ListBox plain;
  Frame page;
  MenuEntry entry;
  MenuEntry hidden_entry;
  Menu menu;
  Timer tick;

  double files = 0;
  bool closed = false;
};

class SmallProgram final : public DrivenProgram {
 public:
  explicit SmallProgram(MessageLoop& loop) : window(loop), loop_(loop) {}

  void start(const std::string& command_line) override {
    started_ = true;
    switches = command_line;
    window.show();
  }
  [[nodiscard]] bool started() const override { return started_; }
  [[nodiscard]] bool ended() const override { return has_ended; }
  void wait(std::chrono::milliseconds time) override { loop_.wait(time); }
  [[nodiscard]] Window* find_window(std::string_view name) const override {
    return started_ && has_window(name) ? const_cast<SmallWindow*>(&window) : nullptr;
  }
  [[nodiscard]] bool has_window(std::string_view name) const override {
    return same_name(name, "Form7");
  }

  SmallWindow window;
  std::string switches;
  bool has_ended = false;

 private:
  MessageLoop& loop_;
  bool started_ = false;
};

// Runs scripts on the small program. Each run goes on with the windows of the one before.
class ScriptStage {
 public:
  // What the script prints; `problem` holds why it ended early.
  std::string run(const std::string& script) {
    std::istringstream lines(script);
    std::ostringstream out;
    ScriptRunner runner(lines, out, machine, program);
    problem = runner.run().value_or("");
    return out.str();
  }

  TempConsoleMachine machine;
  SmallProgram program{machine.loop()};
  SmallWindow& window = program.window;
  std::string problem;
};

}  // namespace quillvane
