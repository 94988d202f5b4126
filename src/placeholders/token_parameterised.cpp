// The tokens with an argument in brackets: {{swap_on_[c]}}, {{RegEx[exp##rep]}},
// {{DecryptFilename[key]}}, {{EncryptFilename[key]}} and {{ParentFolder[n]}}.
#include <cmath>
#include <vector>

#include "base/text.h"
#include "base/vb_error.h"
#include "placeholders/name_cipher.h"
#include "placeholders/regex_token.h"
#include "placeholders/token_steps.h"

namespace tarnwick::token_steps {
namespace {

constexpr std::string_view kTail = "]}}";
constexpr std::size_t kMaxPosition = 32767;  // positions are 16-bit

// Positions count characters and are 16-bit: beyond that the program fails.
void CheckPosition(std::string_view text, std::size_t byte_position) {
  if (byte_position <= kMaxPosition) return;
  std::size_t characters = 0;
  for (std::size_t i = 0; i < byte_position && i < text.size(); ++i) {
    if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) ++characters;
  }
  if (characters >= kMaxPosition) throw VbError(vb_error::kOverflow, "Overflow");
}

// Both head and tail stand somewhere in the expression; order is not tested.
bool Present(const ExpansionPass& pass, std::string_view head) {
  return pass.index().Find(head) != std::string_view::npos &&
         pass.index().Find(kTail) != std::string_view::npos;
}

// The argument: from behind the first occurrence of the head without its
// bracket, plus the head's length, up to the first "]}}" from there.
std::string Argument(const ExpansionPass& pass, std::string_view head) {
  const ExpressionIndex& index = pass.index();
  const std::size_t at = index.Find(head.substr(0, head.size() - 1));
  const std::size_t start = at + head.size();
  CheckPosition(index.expression(), start);
  const std::size_t end = index.Find(kTail, std::min(start, index.lower().size()));
  if (end == std::string_view::npos || start > index.expression().size()) {
    throw VbError(vb_error::kInvalidProcedureCall, "Invalid procedure call or argument");
  }
  CheckPosition(index.expression(), end);
  return std::string(index.expression().substr(start, end - start));
}

std::string FirstCharacter(std::string_view text) { return vb::Left(text, 1); }

std::vector<std::string> SplitIgnoringCase(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  std::size_t from = 0;
  std::size_t length = 0;
  for (std::size_t at;
       (at = FindIgnoringCase(text, separator, from, &length)) != std::string_view::npos;
       from = at + length) {
    parts.emplace_back(text.substr(from, at - from));
  }
  parts.emplace_back(text.substr(from));
  return parts;
}

std::string BaseOf(std::string_view scratch, std::string_view ext) {
  return vb::Left(scratch, std::max<std::int64_t>(vb::Len(scratch) - vb::Len(ext), 0));
}

std::string SwapParts(const std::vector<std::string>& parts, const std::string& c) {
  const bool blank = !parts[0].empty() && parts[0].back() == ' ';
  const std::string joint = blank ? " " + c + " " : c;
  std::string joined;
  for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
    joined += vb::Trim(*part) + joint;
  }
  joined.resize(joined.size() - joint.size());
  return joined;
}

void SwapOn(ExpansionPass& pass) {
  constexpr std::string_view kHead = "{{swap_on_[";
  if (!Present(pass, kHead)) return;
  pass.Run([&] {
    const std::size_t at = pass.index().Find(kHead) + kHead.size();
    CheckPosition(pass.index().expression(), at);
    const std::string c = FirstCharacter(
        pass.index().expression().substr(std::min(at, pass.index().expression().size())));
    std::string scratch = RemoveToken(pass.text(), kHead, 1);
    scratch = RemoveToken(scratch, c + std::string(kTail), 1);
    const std::string ext = ExtensionOf(scratch);
    const std::vector<std::string> parts = SplitIgnoringCase(BaseOf(scratch, ext), c);
    pass.text() = parts.size() < 2 ? scratch : SwapParts(parts, c) + ext;
  });
}

void RegEx(ExpansionPass& pass) {
  constexpr std::string_view kHead = "{{regex[";
  if (!Present(pass, kHead)) return;
  pass.Run([&] {
    const std::string argument = Argument(pass, kHead);
    std::string scratch = RemoveToken(pass.text(), kHead, 1);
    scratch = RemoveToken(scratch, argument + std::string(kTail), 1);
    const std::vector<std::string> parts = SplitIgnoringCase(argument, "##");
    if (vb::Len(argument) <= 1 || parts.size() != 2) return;
    const bool ignore_case = pass.Option("IgnoreRegExCasing", "0") == "1";
    pass.text() = RegExReplace(scratch, parts[0], parts[1], ignore_case);
  });
}

template <typename Cipher>
void CipherToken(ExpansionPass& pass, std::string_view head, Cipher cipher) {
  if (!Present(pass, head)) return;
  pass.Run([&] {
    const std::string key = Argument(pass, head);
    std::string scratch = RemoveToken(pass.text(), head);
    scratch = RemoveToken(scratch, key + std::string(kTail));
    pass.text() = vb::Trim(cipher(scratch, key));
  });
}

// `CInt` of the argument: a number rounded half to even, else type mismatch.
long FolderIndex(const std::string& argument) {
  const std::string text = vb::Trim(argument);
  char* end = nullptr;
  const double value = std::strtod(text.c_str(), &end);
  if (text.empty() || end != text.c_str() + text.size() || !std::isfinite(value)) {
    throw VbError(vb_error::kTypeMismatch, "Type mismatch");
  }
  if (value < -32768.5 || value >= 32767.5) throw VbError(vb_error::kOverflow, "Overflow");
  return std::lrint(value);
}

}  // namespace

void Parameterised(ExpansionPass& pass) {
  SwapOn(pass);
  RegEx(pass);
  CipherToken(pass, "{{decryptfilename[", [](const std::string& text, const std::string& key) {
    return DecryptName(text, key);
  });
  CipherToken(pass, "{{encryptfilename[", [](const std::string& text, const std::string& key) {
    return EncryptName(text, key);
  });
}

void ParentFolderToken(ExpansionPass& pass) {
  constexpr std::string_view kHead = "{{parentfolder[";
  if (!Present(pass, kHead)) return;
  pass.Run([&] {
    const std::string argument = Argument(pass, kHead);
    std::vector<std::string> folders = SplitIgnoringCase(pass.file_path(), "/");
    folders.back().clear();  // the file name
    const std::string scratch = RemoveToken(pass.text(), kHead, 1);
    const long n = FolderIndex(argument);
    if (n < 0 || static_cast<std::size_t>(n) >= folders.size()) {
      throw VbError(vb_error::kSubscriptOutOfRange, "Subscript out of range");
    }
    std::string text = scratch;
    ReplaceToken(text, argument + std::string(kTail), folders[static_cast<std::size_t>(n)], 1);
    pass.text() = std::move(text);
  });
}

}  // namespace tarnwick::token_steps
