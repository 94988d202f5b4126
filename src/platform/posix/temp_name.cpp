#include "platform/posix/temp_name.h"

#include <sys/random.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <cstdint>

namespace tarnwick::posix {
namespace {

constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
constexpr int kTries = 100;

std::string RandomLetters(int count) {
  std::array<std::uint8_t, 16> bytes{};
  if (::getrandom(bytes.data(), bytes.size(), GRND_NONBLOCK) !=
      static_cast<ssize_t>(bytes.size())) {
    // Without the kernel's random source, the clock and the process id still
    // give names that differ between calls.
    std::uint64_t seed = static_cast<std::uint64_t>(::getpid()) * 0x9E3779B97F4A7C15ull ^
                         reinterpret_cast<std::uintptr_t>(&seed) ^
                         static_cast<std::uint64_t>(clock());
    for (auto& byte : bytes)
      byte = static_cast<std::uint8_t>((seed = seed * 6364136223846793005ull + 1) >> 56);
  }
  std::string letters;
  for (int i = 0; i < count; ++i) letters += kLetters[bytes[i % bytes.size()] % 62];
  return letters;
}

}  // namespace

std::filesystem::path FreeTemporaryName(const std::filesystem::path& folder,
                                        const std::string& prefix) {
  for (int attempt = 0; attempt < kTries; ++attempt) {
    std::filesystem::path candidate = folder / (prefix + RandomLetters(10));
    if (::access(candidate.c_str(), F_OK) != 0) return candidate;
  }
  return {};
}

}  // namespace tarnwick::posix
