// Trimming white space off the ends of a text. Which characters count as
// white space is the platform's call (iswspace there), so it is passed in.
#pragma once

#include <string_view>

namespace zk::text {

using SpaceTest = bool (*)(char16_t);

// The text without its leading white space.
std::u16string_view TrimLeft(std::u16string_view text, SpaceTest isSpace);

// The text without its trailing white space.
std::u16string_view TrimRight(std::u16string_view text, SpaceTest isSpace);

// Both ends: left first, then right, on the same text.
std::u16string_view Trim(std::u16string_view text, SpaceTest isSpace);

} // namespace zk::text
