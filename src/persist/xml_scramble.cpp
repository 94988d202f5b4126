#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/vb_error.h"
#include "persist/xml_configuration.h"

namespace tarnwick {
namespace {

// The older program's counter was a signed 16-bit integer.
constexpr std::size_t kMaxScrambledBytes = 32767;

constexpr std::string_view kKey =
    "I59BWVDTB1TV8TLKC86XL1GORBIIGAAPHJ4HR419I8HPGIOOUGW8UNQXM7W9NU6TV0EYP93R6EZAQDQCGN65KUDRCRE9"
    "VS31N7KBNP11OG91F163SFF2Z4JOGT0X9XU";
static_assert(kKey.size() == 127);

}  // namespace

std::string_view ConfigurationKey() { return kKey; }

std::string ScrambleConfigurationText(std::string_view text, std::string_view key) {
  if (text.size() > kMaxScrambledBytes) throw VbError(vb_error::kOverflow, "Overflow");
  if (key.empty()) return std::string(text);
  std::string result(text);
  for (std::size_t i = 0; i < result.size(); ++i) {
    result[i] = static_cast<char>(static_cast<unsigned char>(result[i]) ^
                                  static_cast<unsigned char>(key[i % key.size()]));
  }
  return result;
}

std::string ConfigurationTextToBytes(std::string_view utf8_text) {
  return SingleByteCodePage::Windows1252().Encode(utf8_text);
}

std::string ConfigurationBytesToText(std::string_view file_bytes) {
  return SingleByteCodePage::Windows1252().Decode(file_bytes);
}

}  // namespace tarnwick
