#include "view/console/clean/cleaning_report.h"

#include <string>

#include "view/console/console.h"
#include "view/console/json_text.h"
#include "view/console/readable.h"

namespace quillvane {

namespace {

const char* outcome_of(const FileLeft& file) { return file.queued ? "queued" : "failed"; }

std::string files_text(int count) {
  return std::to_string(count) + (count == 1 ? " file" : " files");
}

std::string problem_of(const CleaningResult& result, Outcome outcome) {
  if (outcome == Outcome::kFailed) return files_text(result.failed()) + " could not be removed";
  if (!result.begun) return "cancelled, nothing was removed";
  return "cancelled, " + files_text(result.not_reached) + " of the list not reached";
}

}  // namespace

Outcome outcome_of_run(const CleaningResult& result, bool cancelled) {
  // One that comes behind the last row is too late.
  if (cancelled && (!result.begun || result.not_reached > 0)) return Outcome::kCancelled;
  return result.failed() > 0 ? Outcome::kFailed : Outcome::kDone;
}

const char* outcome_word(Outcome outcome) {
  switch (outcome) {
    case Outcome::kDone:
      return "done";
    case Outcome::kDeclined:
      return "declined";
    case Outcome::kCancelled:
      return "cancelled";
    case Outcome::kFailed:
      break;
  }
  return "failed";
}

int exit_status(Outcome outcome) {
  return outcome == Outcome::kDone || outcome == Outcome::kDeclined ? kDone : kNotDone;
}

void print_cleaning(const ConsoleIo& io, const CleaningResult& result) {
  for (const FileLeft& file : result.left) {
    io.out << outcome_of(file) << ": " << shown(file.path, io.out_is_terminal) << ": " << file.why
           << '\n';
  }
  io.out << "Removed: " << result.removed << ", queued for the next restart: " << result.queued()
         << ", failed: " << result.failed() << '\n';
}

void print_cleaning_json(std::ostream& out, const CleaningResult& result, Outcome outcome) {
  const Json counts = {
      {"removed", result.removed}, {"queued", result.queued()}, {"failed", result.failed()}};
  out << ",\n \"cleaned\": " << json_text(counts) << ",\n \"left\": [";
  const char* separator = "\n  ";
  for (const FileLeft& file : result.left) {
    out << separator
        << json_text(Json{{"path", file.path}, {"outcome", outcome_of(file)}, {"why", file.why}});
    separator = ",\n  ";
  }
  out << "],\n \"outcome\": " << json_text(outcome_word(outcome));
}

void tell_outcome(const ConsoleIo& io, const char* command, const CleaningResult& result,
                  Outcome outcome) {
  if (exit_status(outcome) == kDone) return;
  io.out.flush();  // what was printed before stands before
  io.err << "quillvane: " << command << ": " << problem_of(result, outcome) << '\n';
}

}  // namespace quillvane
