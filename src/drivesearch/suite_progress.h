// How far a search has come, as two values of the registry for the suite.
#pragma once

#include <cstdint>
#include <string>

#include "support/session.h"

namespace quillvane {

// Told for each folder. The first ones are written one by one, after that each time the folders
// have become a sixty-fourth part more: a write takes longer than a folder, and whoever looks on
// sees figures that lag by two hundredths at most. end() writes the last.
class SuiteProgress {
 public:
  // The session must outlive it.
  explicit SuiteProgress(Session& session) : session_(session) {}

  void begin();
  void tell(std::string count, std::string size);
  void end();

 private:
  void write();

  Session& session_;
  std::uint64_t folders_ = 0;
  std::uint64_t next_write_ = 1;
  bool failed_ = false;     // one failure is told, and then no more is tried
  bool unwritten_ = false;  // the values below
  std::string count_;
  std::string size_;
};

}  // namespace quillvane
