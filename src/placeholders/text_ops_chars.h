#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::text_ops_detail {

// Temporary character helpers until base/text.h lands.
std::vector<std::string> SplitCharacters(std::string_view text);
std::string Join(const std::vector<std::string>& chars);
std::string UpperOf(std::string_view text);
std::string LowerOf(std::string_view text);
bool ContainsIgnoringCase(std::string_view text, std::string_view find);
bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix);
std::string TrimBlanks(std::string_view text);
std::string RTrimBlanks(std::string_view text);
std::string ToCodePage(std::string_view utf8, const char* code_page, bool* lossless);
std::string FromCodePage(std::string_view bytes, const char* code_page);

}  // namespace tarnwick::text_ops_detail
