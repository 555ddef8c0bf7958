// Padding a text with spaces to an exact width in characters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zk::text {

// The text extended with spaces (0x20) to `width` characters and cut to it:
// a longer text loses its tail.
std::u16string Pad(std::u16string_view text, std::size_t width);

} // namespace zk::text
