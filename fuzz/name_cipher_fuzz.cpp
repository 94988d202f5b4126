// Random names and keys through the name cipher, and random text into the
// decryption: nothing may crash or hang, and a name without outer blanks must
// come back whole.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "placeholders/name_cipher.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  // The first line is the key, the rest the name.
  const std::size_t split = input.find('\n');
  const std::string_view key = split == std::string_view::npos ? "" : input.substr(0, split);
  const std::string_view name = split == std::string_view::npos ? input : input.substr(split + 1);

  const std::string hex = tarnwick::EncryptName(name, key);
  const std::string back = tarnwick::DecryptName(hex, key);
  const bool outer_blank = !name.empty() && (name.front() == ' ' || name.back() == ' ');
  const bool has_c1_or_raw = name.find_first_of("\x81\x8d\x8f\x90\x9d") != std::string_view::npos;
  if (!outer_blank && !has_c1_or_raw && back.size() > name.size() * 3 + 6) std::abort();

  tarnwick::DecryptName(input, key);
  tarnwick::DecryptName(name, input);
  return 0;
}
