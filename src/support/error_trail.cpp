#include "support/error_trail.h"

#include <utility>

#include "support/event_log.h"

namespace quillvane {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kReportEventId = "5000";

std::string heading(std::string_view application) {
  std::string text;
  text.append(kLineEnd).append(kLineEnd);
  text.append(70, '-').append(kLineEnd);
  text.append("  RunTime Error in ").append(application).append(kLineEnd).append(kLineEnd);
  return text;
}

// A line with a tab at its head.
std::string indented(std::string_view label, std::string_view content) {
  return std::string("\t").append(label).append(content).append(kLineEnd);
}

}  // namespace

void ErrorTrail::push(std::string_view module, std::string_view method, std::string parameters,
                      std::string_view globals) {
  calls_.push_back(
      {std::string(module), std::string(method), std::move(parameters), std::string(globals)});
}

void ErrorTrail::pop() {
  if (!calls_.empty()) calls_.pop_back();
}

std::string ErrorTrail::dump() const {
  std::string text;
  for (auto call = calls_.rbegin(); call != calls_.rend(); ++call) {
    text += indented("Module:   ", call->module);
    text += indented("Method:   ", call->method + "(" + call->parameters + ")");
    text += indented("Global:   ", call->globals);
    text += kLineEnd;
  }
  return text;
}

std::string ErrorTrail::report_text(std::string_view module, std::string_view method,
                                    int line_number, const RuntimeError& error) const {
  std::string text = heading(application_);
  text.append("RunTime Error: ").append(std::to_string(error.number));
  text.append(" - ").append(error.source).append(kLineEnd);
  text += indented("Module: ", module);
  text += indented("Method: ", method);
  text += indented("Line Number: ", std::to_string(line_number));
  text += indented("Description: :", error.description);  // the second colon is meant
  text.append(kLineEnd).append("Call Stack:").append(kLineEnd).append(dump());
  return text;
}

void ErrorTrail::report(std::string_view module, std::string_view method, int line_number,
                        const RuntimeError& error) {
  EventLog entry(log_);
  entry.WriteEvent(report_text(module, method, line_number, error), application_, kReportEventId,
                   EventLog::kError);
}

}  // namespace quillvane
