// What a drive search found, read from the windows when it is over.
#pragma once

#include <string>
#include <vector>

#include "core/form7.h"
#include "view/console/console_io.h"

namespace quillvane {

struct SearchedDrive {
  std::string name;    // as the list of drives shows it: "Local Disk (C:)"
  std::string status;  // likewise: "Finish"; empty when it was cancelled
  NodeResult found;    // the rows whose paths begin with the drive
};

struct SearchReport {
  NodeResult totals;
  std::string summary;
  std::vector<SearchedDrive> drives;  // those that were ticked
  NodeResult elsewhere;               // rows from folders of the lists on other drives
};

[[nodiscard]] SearchReport read_search_report(const Form7& form);

void print_search_table(const ConsoleIo& io, const SearchReport& report, const ListView* files);
void print_search_json(std::ostream& out, const SearchReport& report, const ListView* files,
                       bool cancelled);

}  // namespace quillvane
