#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// Which command interpreter an undo batch is written for.
enum class UndoBatchTarget {
  // The batch stays on this machine and is carried out by
  // `tarnwick-cli undo`: its bytes are the program's own UTF-8.
  kLinux,
  // The batch is to run under the Windows command interpreter, which reads
  // the OEM code page: texts go out as code page 850 bytes.
  kWindows,
};

// The text as the undo batch holds it. For Windows the UTF-8 text becomes
// code page 850 bytes; a character that code page lacks keeps its UTF-8
// bytes (see base/code_page.h for how a reader tells the two apart), where
// the old conversion wrote a stand-in that named no existing file. For Linux
// it is the text unchanged.
std::string ToOemText(std::string_view text, UndoBatchTarget target);

}  // namespace tarnwick
