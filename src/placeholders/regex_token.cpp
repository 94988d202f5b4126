// {{RegEx[...]}} through PCRE2, with the replacement syntax of the script
// engines' regular expression object.
#define PCRE2_CODE_UNIT_WIDTH 8
#include "placeholders/regex_token.h"

#include <pcre2.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>

#include "base/vb_error.h"

namespace tarnwick {
namespace {

constexpr int kSyntaxError = 5017;
constexpr int kOutOfStack = 28;
constexpr std::uint32_t kMatchLimit = 1'000'000;
constexpr std::uint32_t kDepthLimit = 10'000;
constexpr std::size_t kHeapLimitKiB = 64 * 1024;
constexpr std::size_t kCacheSize = 256;

struct CodeDeleter {
  void operator()(pcre2_code* code) const { pcre2_code_free(code); }
};
struct MatchDataDeleter {
  void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
};
using Code = std::shared_ptr<pcre2_code>;
using MatchData = std::unique_ptr<pcre2_match_data, MatchDataDeleter>;

std::string ErrorText(int code) {
  PCRE2_UCHAR buffer[256];
  if (pcre2_get_error_message(code, buffer, sizeof buffer) < 0) return "unknown error";
  return reinterpret_cast<const char*>(buffer);
}

Code Compile(std::string_view pattern, bool ignore_case) {
  std::uint32_t options =
      PCRE2_UTF | PCRE2_MATCH_INVALID_UTF | PCRE2_ALT_BSUX | PCRE2_DOLLAR_ENDONLY;
  if (ignore_case) options |= PCRE2_CASELESS;
  int error = 0;
  PCRE2_SIZE offset = 0;
  pcre2_code* code = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.data()), pattern.size(),
                                   options, &error, &offset, nullptr);
  if (code == nullptr) {
    throw VbError(kSyntaxError, "Syntax error in regular expression: " + ErrorText(error) +
                                    " at offset " + std::to_string(offset));
  }
  pcre2_jit_compile(code, PCRE2_JIT_COMPLETE);  // falls back to the interpreter
  return Code(code, CodeDeleter());
}

// Compiled patterns by flag and pattern. Bounded: a full cache starts anew.
Code CachedCode(std::string_view pattern, bool ignore_case) {
  static std::mutex mutex;
  static std::unordered_map<std::string, Code> cache;
  std::string key(ignore_case ? "i:" : "c:");
  key.append(pattern);
  std::lock_guard lock(mutex);
  if (auto hit = cache.find(key); hit != cache.end()) return hit->second;
  Code code = Compile(pattern, ignore_case);
  if (cache.size() >= kCacheSize) cache.clear();
  cache.emplace(std::move(key), code);
  return code;
}

pcre2_match_context* Limits() {
  static pcre2_match_context* context = [] {
    pcre2_match_context* c = pcre2_match_context_create(nullptr);
    pcre2_set_match_limit(c, kMatchLimit);
    pcre2_set_depth_limit(c, kDepthLimit);
    pcre2_set_heap_limit(c, kHeapLimitKiB);
    return c;
  }();
  return context;
}

// Length of the character at `at`: a UTF-8 sequence, or one byte that is not.
std::size_t CharLength(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 1;
  if (at + length > text.size()) return 1;
  for (std::size_t i = 1; i < length; ++i) {
    if ((static_cast<unsigned char>(text[at + i]) & 0xC0) != 0x80) return 1;
  }
  return length;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// One match as the replacement sees it.
struct Match {
  std::string_view subject;
  const PCRE2_SIZE* ovector;
  std::uint32_t groups;  // capture groups of the pattern

  std::string_view Group(std::uint32_t n) const {
    if (ovector[2 * n] == PCRE2_UNSET) return {};
    return subject.substr(ovector[2 * n], ovector[2 * n + 1] - ovector[2 * n]);
  }
};

// Reads a group reference after "$" at `at`; 0 when there is none. `used`
// gets the number of digits taken.
std::uint32_t GroupReference(std::string_view replacement, std::size_t at, std::uint32_t groups,
                             std::size_t& used) {
  if (at >= replacement.size() || !IsDigit(replacement[at])) return 0;
  const std::uint32_t one = replacement[at] - '0';
  if (at + 1 < replacement.size() && IsDigit(replacement[at + 1])) {
    const std::uint32_t two = one * 10 + (replacement[at + 1] - '0');
    if (two >= 1 && two <= groups) {
      used = 2;
      return two;
    }
  }
  if (one >= 1 && one <= groups) {
    used = 1;
    return one;
  }
  return 0;
}

void AppendReplacement(std::string& out, std::string_view replacement, const Match& match) {
  for (std::size_t i = 0; i < replacement.size(); ++i) {
    const char c = replacement[i];
    if (c != '$' || i + 1 >= replacement.size()) {
      out.push_back(c);
      continue;
    }
    const char next = replacement[i + 1];
    std::size_t used = 0;
    if (next == '$') {
      out.push_back('$');
    } else if (next == '&') {
      out.append(match.Group(0));
    } else if (next == '`') {
      out.append(match.subject.substr(0, match.ovector[0]));
    } else if (next == '\'') {
      out.append(match.subject.substr(match.ovector[1]));
    } else if (const std::uint32_t n = GroupReference(replacement, i + 1, match.groups, used)) {
      out.append(match.Group(n));
      i += used;
      continue;
    } else {
      out.push_back('$');
      continue;
    }
    ++i;
  }
}

[[noreturn]] void Fail(int rc) {
  if (rc == PCRE2_ERROR_MATCHLIMIT || rc == PCRE2_ERROR_DEPTHLIMIT || rc == PCRE2_ERROR_HEAPLIMIT ||
      rc == PCRE2_ERROR_JIT_STACKLIMIT) {
    throw VbError(kOutOfStack, "Out of stack space: " + ErrorText(rc));
  }
  throw VbError(kSyntaxError, "Regular expression failed: " + ErrorText(rc));
}

}  // namespace

std::string RegExReplace(std::string_view subject, std::string_view pattern,
                         std::string_view replacement, bool ignore_case) {
  const Code code = CachedCode(pattern, ignore_case);
  MatchData data(pcre2_match_data_create_from_pattern(code.get(), nullptr));
  if (!data) throw VbError(vb_error::kOutOfMemory, "Out of memory");
  std::uint32_t groups = 0;
  pcre2_pattern_info(code.get(), PCRE2_INFO_CAPTURECOUNT, &groups);
  const PCRE2_SIZE* ovector = pcre2_get_ovector_pointer(data.get());
  const auto* bytes = reinterpret_cast<PCRE2_SPTR>(subject.data());
  std::string out;
  std::size_t copied = 0;  // subject bytes already in `out`
  std::size_t at = 0;      // where the next search starts
  while (at <= subject.size()) {
    const int rc = pcre2_match(code.get(), bytes, subject.size(), at, 0, data.get(), Limits());
    if (rc == PCRE2_ERROR_NOMATCH) break;
    if (rc < 0) Fail(rc);
    // \K can move a match's start; never step backwards.
    const std::size_t start = std::max<std::size_t>(ovector[0], copied);
    const std::size_t end = std::max<std::size_t>(ovector[1], start);
    out.append(subject.substr(copied, start - copied));
    AppendReplacement(out, replacement, Match{subject, ovector, groups});
    copied = end;
    if (end > ovector[0] && end > at) {
      at = end;
    } else {
      if (end >= subject.size()) break;
      at = end + CharLength(subject, end);
    }
  }
  out.append(subject.substr(copied));
  return out;
}

}  // namespace tarnwick
