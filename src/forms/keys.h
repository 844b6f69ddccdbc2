#pragma once

#include <optional>
#include <string_view>

#include "forms/types.h"

namespace kivu::forms {

// "Ctrl+Enter", "Alt+F4", "Delete", "a": a key by its name. A capital letter alone is typed with
// Shift; behind Ctrl or Alt it names the key: "Ctrl+F" is Ctrl and f. Empty: there is no such key.
[[nodiscard]] std::optional<Key> KeyByName(std::string_view name);

// The key that types a character, on a US keyboard. Characters without a key there give
// keys::otherCharacter, so that no handler takes one for a key with the character's number.
Key KeyOf(char32_t character);

// The character that a key types, 0 for none. Ctrl gives the control characters.
Character CharacterOf(Key key);

}  // namespace kivu::forms
