// What CoolMenu keeps of the entries of menus.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace quillvane {

// CMyItemData: one entry of a menu.
struct CMyItemData {
  bool bMainMenu = false;   // an entry of the menu bar
  int iButton = -1;         // number of its picture in the image list, from 0; -1 without one
  std::uint32_t fType = 0;  // the type bits that Windows has of it
  std::string sMenuText;    // its caption

  bool operator==(const CMyItemData&) const = default;
};

// CMyItemDatas: the entries, each under a key that stays its own.
class CMyItemDatas {
 public:
  using Key = std::uintptr_t;

  Key add(CMyItemData item) {
    items_.emplace(++last_, std::move(item));
    return last_;
  }
  // Null when there is none under that key.
  [[nodiscard]] const CMyItemData* item(Key key) const {
    const auto found = items_.find(key);
    return found == items_.end() ? nullptr : &found->second;
  }
  [[nodiscard]] std::size_t count() const { return items_.size(); }
  void remove(Key key) { items_.erase(key); }
  void clear() { items_.clear(); }
  // In the order in which they were added.
  [[nodiscard]] auto begin() const { return items_.begin(); }
  [[nodiscard]] auto end() const { return items_.end(); }

 private:
  std::map<Key, CMyItemData> items_;
  Key last_ = 0;
};

}  // namespace quillvane
