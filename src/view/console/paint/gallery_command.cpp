// gallery: the sheet as a file.

#include <CLI/CLI.hpp>
#include <memory>

#include "view/console/paint/gallery.h"
#include "view/console/paint/paint_words.h"

namespace quillvane {

std::function<int()> prepare_gallery(CLI::App& app, ConsoleSession& session) {
  const auto file = std::make_shared<std::string>();
  app.add_option("FILE", *file, "The PNG file to write")->required();
  return [file, &session] {
    if (!can_write_captions(session)) return kNotDone;
    return write_picture(session, *file, make_gallery(session.io.pictures->text));
  };
}

}  // namespace quillvane
