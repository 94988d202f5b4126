#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// The genre table: 148 names, numbers 0 to 147.
// The name of genre `number`; empty outside the table.
std::string GenreName(int number);
// The number of the first name equal to the trimmed `name` without regard to
// case; 255 when none is.
int GenreIndex(std::string_view name);
// A TCON value as the tag record shows it: "(17)..." gives the table's name,
// "(RX)" "Remix", "(CR)" "Cover"; anything else stands.
std::string ParseGenreField(std::string_view text);
// The writer's inverse: a known name becomes "(17)Rock"; others stand.
std::string FormatGenreField(std::string_view name);

}  // namespace tarnwick
