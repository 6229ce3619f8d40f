// What the program asks of the system's shell.
#pragma once

#include <string>

namespace quillvane {

// How a started program shows its window, as Windows numbers it.
inline constexpr int kShowNormal = 1;

// What the shell shall open: a program, a document or a folder.
struct ShellRequest {
  std::string verb;  // "Open"
  std::string path;
  std::string folder;  // to start in; empty: the system chooses
  int show = kShowNormal;
};

class Shell {
 public:
  virtual ~Shell() = default;

  // The system's answer: above 32 when it was opened, else an error number (2: not found).
  virtual int open(const ShellRequest& request) = 0;

  // Shows the properties sheet of a file. False when it could not be shown.
  virtual bool show_properties(const std::string& path) = 0;

  // Path of a special folder by its number (CSIDL), made when it is missing; empty when there is
  // none.
  [[nodiscard]] virtual std::string special_folder(int id) const = 0;

  // Moves one file to the recycle bin without a question. False when it could not be moved: then it
  // stays where it is.
  virtual bool recycle(const std::string& path) = 0;

  // Empties the recycle bin of all drives without a question.
  virtual void empty_recycle_bin() = 0;
  virtual void update_recycle_bin_icon() = 0;

  // Opens a help file (the whole text that is handed over, window type included) at a topic.
  virtual void show_help(const std::string& file, int topic) = 0;
};

}  // namespace quillvane
