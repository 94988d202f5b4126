// Arbitrary bytes as a text file of new names: reading, the validation
// report, the word count and the count check must not crash or hang, and
// what they say must agree with the rows.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "shell/message_table.h"
#include "tools/rename_from_text.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

bool Refused(char c) {
  return static_cast<unsigned char>(c) < 32 || std::string_view("\\/:*?\"<>|").find(c) !=
                                                   std::string_view::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnwick;
  const MessageTable& messages = MessageTable::Get(Language::kEnglish);
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const NameTextFile file = NameTextFromBytes(bytes, messages);
  Check(file.size == size);
  if (!file.error.empty()) {
    Check(bytes.find('\0') != std::string_view::npos);
    return 0;
  }
  bool any_refused = false;
  for (const std::string& row : file.rows) {
    // Rows never keep their line ends.
    Check(row.find("\r\n") == std::string::npos);
    if (file.lf_only) Check(row.find('\n') == std::string::npos);
    for (const char c : row) any_refused |= Refused(c);
  }
  const std::string report = NameTextReport(file.rows, messages);
  Check(report.empty() == !any_refused);
  Check(CountNameTextWords(file) >= 0);
  const NameTextCheck check = CheckNameTextFile(file, file.rows.size(), messages);
  Check(check.ok == report.empty());
  Check(!CheckNameTextFile(file, file.rows.size() + 1, messages).ok);
  return 0;
}
