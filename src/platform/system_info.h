#pragma once

#include <filesystem>
#include <string>

namespace tarnwick {

// The name of the logged-on user: the account of the effective user id, or
// $USER (then $LOGNAME) when the account database has no entry; empty when
// neither is known.
std::string LoggedOnUserName();

// The name of this computer (the host name), cut at its first NUL.
std::string ComputerName();

// A new random unique identifier in the text form Windows gives a GUID:
// upper-case hexadecimal digits in groups of 8-4-4-4-12 inside braces,
// "{3F2504E0-4F89-41D3-9A0C-0305E82C3301}" (38 characters).
std::string NewUniqueId();

// The folder a session starts in when none is known: the home folder.
std::filesystem::path DefaultRootFolder();

}  // namespace tarnwick
