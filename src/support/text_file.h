// Texts on the disk: list files, reports and what else holds lines or fields of text.
//
// They are in the system's code page, so that older files and other programs of the suite
// understand them. Read: a UTF-8 mark, or bytes above ASCII that are valid UTF-8 throughout, are
// UTF-8; all else is the system's code page. Written: the system's code page; a text that it cannot
// hold is UTF-8 with its mark.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace quillvane {

struct FileText {
  std::string text;     // in UTF-8, without its mark; empty when it is missing or was not read
  std::string problem;  // why a file that is there was not read, in a few words; empty when it was
};

[[nodiscard]] FileText read_text_file(const Platform& platform, const std::string& path);

// Makes the file hold exactly this text, at one stroke; false when it cannot.
[[nodiscard]] bool write_text_file(const Platform& platform, const std::string& path,
                                   std::string_view text);

// Why a file was not read, in a few words; empty for one that is missing.
[[nodiscard]] std::string read_problem(ReadFailure failure);

// That the system's code page is not installed, likewise.
[[nodiscard]] std::string code_page_problem(const SystemInfo& system);

// The same rule for bytes that are part of a file.

// Nothing when the bytes need a code page that the system does not know.
[[nodiscard]] std::optional<std::string> text_of_bytes(const SystemInfo& system,
                                                       std::string_view bytes);

// The bytes of a whole file.
[[nodiscard]] std::string bytes_of_text(const SystemInfo& system, std::string_view text);

// A field of exactly `width` bytes, filled up with blanks. A text that is too long is cut behind a
// whole character; one that the code page cannot hold is UTF-8 in this field alone, without a mark.
[[nodiscard]] std::string field_of_text(const SystemInfo& system, std::string_view text,
                                        std::size_t width);

}  // namespace quillvane
