// The casing, cleaning and other whole-text tokens.
#include "base/text.h"
#include "base/vb_error.h"
#include "persist/option_store.h"
#include "placeholders/text_ops.h"
#include "placeholders/token_steps.h"
#include "platform/system_info.h"

namespace tarnwick::token_steps {
namespace {

std::string WithoutBlanks(std::string_view text) {
  std::string out;
  for (char c : text) {
    if (c != ' ') out += c;
  }
  return out;
}

// {{firstchar...}}: with nothing left once the token is gone, the text keeps
// the token.
template <typename Change>
void FirstCharToken(ExpansionPass& pass, std::string_view token, Change change) {
  if (!pass.Has(token)) return;
  pass.Run([&] {
    std::string scratch = RemoveToken(pass.text(), token);
    if (!scratch.empty()) pass.text() = change(scratch);
  });
}

void NumberWords(ExpansionPass& pass, std::string_view token, NumberLanguage language,
                 const std::string& ext) {
  pass.TransformToken(token, [&](std::string scratch) {
    auto words = ReplaceFirstNumberWithWords(scratch, ext, language);
    if (!words) throw VbError(vb_error::kOverflow, "Overflow");
    return *std::move(words);
  });
}

}  // namespace

void Casing(ExpansionPass& pass) {
  pass.TransformToken("{{uppercasing}}", [](std::string s) { return vb::UCase(s); });
  pass.TransformToken("{{lowercasing}}", [](std::string s) { return vb::LCase(s); });
  FirstCharToken(pass, "{{firstcharuppercasing}}",
                 [](const std::string& s) { return FirstCharUpper(s); });
  FirstCharToken(pass, "{{firstcharlowercasing}}",
                 [](const std::string& s) { return FirstCharLower(s); });
  pass.ValueToken("{{space}}", [] { return std::string(" "); });
}

void Cleaning(ExpansionPass& pass) {
  if (!pass.index().HasPrefix("{{trim") && !pass.index().HasPrefix("{{remove_")) return;
  pass.TransformToken("{{trim_left}}", [](std::string s) { return vb::LTrim(s); });
  pass.TransformToken("{{trim_right}}",
                      [](std::string s) { return TrimRightKeepingExtension(s, ExtensionOf(s)); });
  pass.TransformToken("{{trim}}", [](std::string s) { return vb::Trim(s); });
  pass.TransformToken("{{remove_spaces}}", [](std::string s) { return WithoutBlanks(s); });
  pass.TransformToken("{{remove_numbers}}", [](std::string s) { return RemoveNumbers(s); });
  pass.TransformToken("{{remove_chars}}", [](std::string s) { return RemoveChars(s); });
  pass.TransformToken("{{remove_repeatedchars}}",
                      [](std::string s) { return RemoveRepeatedChars(s, false); });
  pass.TransformToken("{{remove_dots}}",
                      [](std::string s) { return RemoveDotsKeepingExtension(s, ExtensionOf(s)); });
  pass.TransformToken("{{remove_brackets}}", [](std::string s) { return RemoveBrackets(s); });
}

void NumberWordsAndCasing(ExpansionPass& pass) {
  if (pass.index().HasPrefix("{{numbertostring_")) {
    const std::string ext = ExtensionOf(pass.text());
    NumberWords(pass, "{{numbertostring_german}}", NumberLanguage::kGerman, ext);
    NumberWords(pass, "{{numbertostring_english}}", NumberLanguage::kEnglish, ext);
  }
  pass.TransformToken("{{propercase}}", [](std::string s) { return ProperCase(s); });
  pass.TransformToken("{{camelcasing}}", [](std::string s) { return CamelCase(s); });
  pass.TransformToken("{{respace}}", [](std::string s) { return RemoveDoubleBlanks(s); });
}

void MarkerAndReverse(ExpansionPass& pass) {
  // The run acts on this marker; here it only goes.
  pass.ValueToken("{{set_jpg_to_exif_originaldate}}", [] { return std::string(); });
  pass.TransformToken("{{reverse}}",
                      [](std::string s) { return ReverseKeepingExtension(s, ExtensionOf(s)); });
}

void LateText(ExpansionPass& pass) {
  pass.TransformToken("{{swapcasing}}", [](std::string s) { return SwapCasing(s); });
  pass.ValueToken("{{uniqueid}}", [] { return NewUniqueId(); });
  pass.TransformToken("{{convertansi-ascii}}", [](std::string s) { return ConvertAnsiToOem(s); });
  pass.TransformToken("{{convertascii-ansi}}", [](std::string s) { return ConvertOemToAnsi(s); });
  if (pass.Has("{{fileinfo_extension}}")) {
    // Kept: the whole text gathered so far is dropped for the extension.
    pass.Run([&] {
      const std::string ext = ExtensionOf(pass.file_path());
      pass.text() = ext.empty() ? std::string() : ext.substr(1);
    });
  }
  pass.TransformToken("{{convertumlauts}}", [](std::string s) { return ConvertUmlauts(s); });
  ParentFolderToken(pass);
}

}  // namespace tarnwick::token_steps
