#include "filelist/extension_list.h"

#include "base/path_text.h"
#include "base/text.h"

namespace tarnwick {

void ExtensionList::AddExtension(std::string_view lower_extension) {
  std::string item = "*.";
  item += lower_extension;
  items_.insert(std::move(item));
}

ExtensionFilter::ExtensionFilter(std::string_view filter)
    : all_(filter == "*.*"), extension_(ExtensionName(filter)) {}

bool ExtensionFilter::Matches(std::string_view extension) const {
  return all_ || EqualsText(extension, extension_);
}

}  // namespace tarnwick
