// Reading a JSON document field by field. The first thing that is wrong is kept as one line that
// names the field and the reason ("drives[1].type: must be a text"); what comes after it is
// passed over.
#pragma once

#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quillvane {

// A field that is absent leaves its target as it is, unless it is needed. `prefix` is the way to
// the object that holds the field: "drives[1]." or nothing.
class JsonFields {
 public:
  using Json = nlohmann::json;

  // Empty as long as nothing is wrong.
  [[nodiscard]] const std::string& error() const { return error_; }
  void fail(const std::string& where, const std::string& why);

  // Null when the field is absent.
  [[nodiscard]] static const Json* find(const Json& object, const char* key);

  // Fails at a field of the object that is none of these.
  void known_keys(const Json& object, const std::string& prefix, std::span<const char* const> keys);

  void text(const Json& object, const std::string& prefix, const char* key, std::string& out);
  void needed_text(const Json& object, const std::string& prefix, const char* key,
                   std::string& out);
  void flag(const Json& object, const std::string& prefix, const char* key, bool& out);
  [[nodiscard]] std::optional<std::int64_t> number(const Json& object, const std::string& prefix,
                                                   const char* key, std::int64_t least,
                                                   std::int64_t greatest);
  void byte_count(const Json& object, const std::string& prefix, const char* key,
                  std::optional<std::uint64_t>& out);
  void texts(const Json& object, const char* key, std::vector<std::string>& out);

  // Takes the text of one value; `where` names it.
  void take_text(const Json& value, const std::string& where, std::string& out);

  // Calls `read(element, "key[0]")` for each element of a list.
  template <typename Read>
  void list(const Json& object, const char* key, Read read) {
    const Json* field = find(object, key);
    if (field == nullptr) return;
    if (!field->is_array()) return fail(key, "must be a list");
    for (std::size_t i = 0; i < field->size() && error_.empty(); ++i) {
      read((*field)[i], std::string(key) + "[" + std::to_string(i) + "]");
    }
  }

  // Calls `read(object, "key[0].")` for each element of a list of objects.
  template <typename Read>
  void objects(const Json& object, const char* key, Read read) {
    list(object, key, [&](const Json& element, const std::string& where) {
      if (!element.is_object()) return fail(where, "must be an object");
      read(element, where + ".");
    });
  }

 private:
  std::string error_;
};

}  // namespace quillvane
