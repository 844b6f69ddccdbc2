#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "profile/ini_syntax.h"

// One key of a profile, by one pass over its bytes up to the key. For many keys of one profile an
// IniDocument costs less; both give the same values and the same bytes.
namespace kivu::profile {

// As IniDocument::Value. Copies nothing but the value (and a UTF-16 file).
std::string FindIniValue(std::string_view bytes, std::string_view section, std::string_view key,
                         const IniCoding& coding);

// The file after IniDocument::Set; empty optional when that changes nothing.
std::optional<std::string> SetIniValue(std::string_view bytes, std::string_view section,
                                       std::string_view key, std::string_view value,
                                       const IniCoding& coding);

}  // namespace kivu::profile
