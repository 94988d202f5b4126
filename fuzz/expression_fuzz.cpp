// Random expressions, file names and date texts into the placeholder engine:
// nothing may crash or hang, and the result stays within a bound of the
// input's size. Also feeds the same bytes to the picture size and version
// resource readers, which read outside data.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "placeholders/engine.h"
#include "placeholders/picture_size.h"
#include "placeholders/version_resource.h"

namespace {

std::string_view NextLine(std::string_view& input) {
  const std::size_t split = input.find('\n');
  const std::string_view line = input.substr(0, split);
  input.remove_prefix(split == std::string_view::npos ? input.size() : split + 1);
  return line;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size > 4096) return 0;
  std::string_view input(reinterpret_cast<const char*>(data), size);
  tarnwick::ParsePictureSize(input);
  tarnwick::ParseVersionStrings(input);

  // Line 1: the file name, line 2: the date text, the rest: the expression.
  const std::string_view name = NextLine(input);
  const std::string_view date = NextLine(input);
  const std::string_view expression = input;

  tarnwick::PlaceholderState state;
  tarnwick::ExpansionContext context;
  context.state = &state;
  context.now = [] { return tarnwick::ClockReading{2004, 3, 8, 10, 15, 5, 36905.0}; };
  context.row = {"/nonexistent-tarnwick-fuzz", std::string(name), "Text", "fuzz"};
  context.numbering = {"_", "01", "2", 3};
  context.current_count = static_cast<std::int32_t>(size) - 100;
  const std::string path = "/nonexistent-tarnwick-fuzz/" + std::string(name);
  const std::string result = tarnwick::ConvertExpressionMultiple(context, expression, date, path);
  // Each token's value is short, so the text grows by a bounded factor,
  // except that a regular expression's replacement may repeat the text
  // before or after each match ($` and $'), and an empty pattern matches at
  // every place: that growth goes with the square of the length.
  if (result.size() > 64 * (size + 64) + 4 * size * size) std::abort();
  return 0;
}
