#include "app/standard_output.h"

#include "app/terminal.h"

namespace quillvane {

StandardOutput::StandardOutput() { setp(buffer_.data(), buffer_.data() + buffer_.size()); }

StandardOutput::~StandardOutput() { static_cast<void>(sync()); }

StandardOutput::int_type StandardOutput::overflow(int_type c) {
  if (sync() != 0) return traits_type::eof();
  if (!traits_type::eq_int_type(c, traits_type::eof())) sputc(traits_type::to_char_type(c));
  return traits_type::not_eof(c);
}

// What could not be written is dropped: it would fail again.
int StandardOutput::sync() {
  const Written written = write_output({pbase(), static_cast<std::size_t>(pptr() - pbase())});
  if (written == Written::kReaderGone) reader_gone_ = true;
  setp(buffer_.data(), buffer_.data() + buffer_.size());
  return written == Written::kAll ? 0 : -1;
}

}  // namespace quillvane
