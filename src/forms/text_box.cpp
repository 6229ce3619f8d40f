#include "forms/text_box.h"

#include "platform/unicode_case.h"

namespace quillvane {

void TextBox::set_text(std::string_view text) {
  if (text_ == text) return;
  text_ = text;
  notify(Change::kText);
  if (on_change) on_change();
}

std::optional<PropertyValue> TextBox::property(std::string_view name) const {
  if (same_name(name, "text")) return text_;
  return Control::property(name);
}

}  // namespace quillvane
