#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// The replacement of {{RegEx[exp##rep]}}: every match of `pattern` in
// `subject` (Global) replaced by `replacement`, in the script engines' syntax.
//
// In the replacement "$1" to "$99" stand for groups ("$12" is group 12 when
// the pattern has that many groups, else group 1 and a "2"), "$&" for the
// match, "$`" and "$'" for the text before and after it, "$$" for one "$";
// any other "$" stands for itself, as does a reference to a group the pattern
// does not have. A group that took no part gives the empty text. An empty
// match moves on by one character.
//
// The subject may hold bytes that are not UTF-8: they match nothing and pass
// through. Matching stops at a fixed match and depth limit, so no pattern
// hangs the program.
//
// Raises VbError 5017 for a pattern that does not compile (the description
// names the reason) and 28 when a limit is hit; the caller's fault handler
// leaves the token in the text. Compiled patterns are cached by pattern and
// flags.
std::string RegExReplace(std::string_view subject, std::string_view pattern,
                         std::string_view replacement, bool ignore_case);

}  // namespace tarnwick
