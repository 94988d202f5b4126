#include "persist/undo_oem_text.h"

#include "base/code_page.h"

namespace tarnwick {

std::string ToOemText(std::string_view text, UndoBatchTarget target) {
  if (target == UndoBatchTarget::kLinux) return std::string(text);
  return SingleByteCodePage::Oem850().Encode(text);
}

}  // namespace tarnwick
