// The error trail: where the program is, kept as a stack of call records, and the report that a
// run-time error writes into the system's application log. Only the search classes use it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/event_log.h"

namespace quillvane {

// A run-time error, by its number and description.
struct RuntimeError {
  int number = 0;
  std::string source;
  std::string description;
};

inline constexpr int kOverflowError = 6;

class ErrorTrail {
 public:
  ErrorTrail(SystemEventLog& log, std::string_view application)
      : log_(log), application_(application) {}

  // Notes the entry into a routine; `parameters` are its arguments as text.
  void push(std::string_view module, std::string_view method, std::string parameters,
            std::string_view globals);
  // Notes the exit. Harmless on an empty stack.
  void pop();

  // Writes the report text (error, place and call stack) into the application log, as an error with
  // event id 5000. Never fails: a log that takes no entry is passed over.
  void report(std::string_view module, std::string_view method, int line_number,
              const RuntimeError& error);

  // The stack as text, the latest call first.
  [[nodiscard]] std::string dump() const;

 private:
  struct Call {
    std::string module;
    std::string method;
    std::string parameters;
    std::string globals;
  };

  [[nodiscard]] std::string report_text(std::string_view module, std::string_view method,
                                        int line_number, const RuntimeError& error) const;

  SystemEventLog& log_;
  std::string application_;
  std::vector<Call> calls_;
};

}  // namespace quillvane
