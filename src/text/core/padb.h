// Padding a text to an exact width in bytes of the system's ANSI code page,
// where a double-byte character counts two and is never cut in half.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zk::text {

// What the padding needs of the platform: the code page conversions and the
// host's multi-byte helpers.
class CodePage {
public:
    virtual ~CodePage() = default;
    // Bytes of the text in the code page, without a terminator.
    virtual std::size_t ByteLength(std::u16string_view text) = 0;
    // A byte block of the host, or null.
    virtual char *AllocBytes(std::size_t size) = 0;
    virtual void FreeBytes(char *block) = 0;
    // The text in the code page into `out` of `size` bytes, terminated.
    virtual void ToBytes(std::u16string_view text, char *out, std::size_t size) = 0;
    // Copies at most `limit` bytes of the terminated `source`; true when a
    // double-byte character had to be left out because it would be split.
    virtual bool CopyBytes(char *destination, const char *source, std::size_t limit) = 0;
    // Characters of terminated bytes converted back, terminator included.
    virtual std::size_t WideLength(const char *bytes) = 0;
};

struct PaddedBytes {
    std::u16string text;    // the result's characters
    std::size_t allocBytes; // the host string's size in bytes: room for the
                            // text and its terminator, or, after a cut
                            // double-byte character, for the text alone
};

// The text padded or cut to `width` (at least 1) bytes. Nothing when a byte
// block of the host cannot be had or the code page gives no characters back.
std::optional<PaddedBytes> PadBytes(std::u16string_view text, std::size_t width, CodePage &codePage);

} // namespace zk::text
