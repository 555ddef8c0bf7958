#include "text/core/padb.h"

#include <algorithm>
#include <cstring>

namespace zk::text {
namespace {

// A host byte block given back on every path.
class ByteBlock {
public:
    ByteBlock(CodePage &codePage, std::size_t size) : codePage_(codePage), bytes_(codePage.AllocBytes(size)) {
        if (bytes_)
            std::memset(bytes_, 0, size);
    }
    ~ByteBlock() {
        if (bytes_)
            codePage_.FreeBytes(bytes_);
    }
    ByteBlock(const ByteBlock &) = delete;
    ByteBlock &operator=(const ByteBlock &) = delete;
    char *get() const { return bytes_; }

private:
    CodePage &codePage_;
    char *bytes_;
};

} // namespace

std::optional<PaddedBytes> PadBytes(std::u16string_view text, std::size_t width, CodePage &codePage) {
    const std::size_t n = codePage.ByteLength(text);
    if (n <= width) {
        // Short enough: the whole text and one space per missing byte.
        std::u16string out(text);
        out.append(width - n, u' ');
        return PaddedBytes{out, out.size() * 2 + 2};
    }

    ByteBlock full(codePage, n + 1);
    ByteBlock cut(codePage, width + 1); // zeroed, so the copy ends whatever it writes
    if (!full.get() || !cut.get())
        return std::nullopt;
    codePage.ToBytes(text, full.get(), n + 1);
    const bool split = codePage.CopyBytes(cut.get(), full.get(), width);
    const std::size_t m = codePage.WideLength(cut.get());
    if (m == 0)
        return std::nullopt;

    // The first m - 1 characters of the text as given, in a host string of
    // 2m bytes. A double-byte character that did not fit is made up by a
    // space in its place, so the result is exactly `width` bytes: that space
    // takes the terminator's place and the text fills its buffer to the last
    // byte, where the host's own terminator ends it.
    const std::size_t whole = std::min(m - 1, text.size());
    std::u16string out(text.substr(0, whole));
    if (split)
        out.push_back(u' ');
    return PaddedBytes{out, 2 * (whole + 1)};
}

} // namespace zk::text
