#include "view/console/scan/scan_progress.h"

#include "core/form7.h"
#include "support/text.h"
#include "view/console/readable.h"

namespace quillvane {

std::string scan_progress(const Form7& form, std::string_view place) {
  const double files = form.totals.listedfiles;
  return number_text(files) + (files == 1 ? " file, " : " files, ") +
         readable_size(form.totals.listedsize) + "  " + std::string(place);
}

}  // namespace quillvane
