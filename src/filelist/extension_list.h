#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "filelist/name_order.h"

namespace tarnwick {

// The items of the extension box `cboExtension`: "*." + the extension of
// each row, and "*.*", each once (`UniqueExtensions`), in the box's sorted
// order ("*." for files without an extension comes first, then "*.*").
class ExtensionList {
 public:
  void Clear() { items_.clear(); }
  // "*." + the lower-case extension.
  void AddExtension(std::string_view lower_extension);
  void AddAll() { items_.insert("*.*"); }
  std::vector<std::string> Items() const { return {items_.begin(), items_.end()}; }

 private:
  struct Order {
    bool operator()(const std::string& a, const std::string& b) const {
      return CompareNames(a, b) < 0;
    }
  };
  std::set<std::string, Order> items_;
};

// The extension filter `CurrentFilter`: "*.*" lets every file pass;
// otherwise the extensions of filter and file must match without regard to
// case ("*.JPG" keeps "a.jpg"; "*." keeps names without an extension).
class ExtensionFilter {
 public:
  explicit ExtensionFilter(std::string_view filter);
  bool Matches(std::string_view extension) const;

 private:
  bool all_ = false;
  std::string extension_;
};

}  // namespace tarnwick
