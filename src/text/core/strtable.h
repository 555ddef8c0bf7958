// String tables: a text file of keyed lines held as one block of entries,
// and the look-up of a key in such a block.
//
// The block holds one NUL-terminated entry per line and ends with the end
// mark. Only CR directly followed by LF ends a line; a lone CR or LF is text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zk::text {

inline constexpr char16_t kTableEndMark = 0x1A;
// Files of this many bytes or more are refused.
inline constexpr int32_t kTableFileLimit = 65534;

// 0 when a file of `size` bytes (as the size query answered) can be loaded;
// else the load's result: the query's own negative code, or -30.
int32_t TableSizeCode(int32_t size);

// Characters of the block for a text of `length` characters: the text, a
// terminator for the last line and the end mark.
inline std::size_t TableBlockChars(std::size_t length) { return length + 2; }

// Turns the text in chars[0, length) into the block, in place (the block is
// never longer than TableBlockChars(length), which `chars` must hold).
// Gives the characters the block uses.
std::size_t MakeTableBlock(char16_t *chars, std::size_t length);

// The block for a text, as a string (for callers that own no buffer).
std::u16string TableBlock(std::u16string_view text);

// The value of `key`: the rest of the first entry that holds "{key}", with
// case. Nothing when no entry before the end mark has it. The scan stays
// inside `block`, so a block without terminator or end mark finds nothing
// beyond its last whole entry.
std::optional<std::u16string_view> TableFind(std::u16string_view block, std::u16string_view key);

} // namespace zk::text
