#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// The byte form of a name for the name cipher, and back; see name_cipher.h
// for how characters outside Windows-1252 travel.
std::string NameToCipherBytes(std::string_view text);
std::string CipherBytesToName(std::string_view bytes);

}  // namespace tarnwick
