// Shortening a path to fit a width, as a field shows a path it cannot hold
// whole: the root stays, folders give way from the right of the middle to
// "...", and only then is the name itself cut. How wide a text is comes in
// through TextWidth, so the sums run on any measure.
#pragma once

#include <string>
#include <string_view>

namespace zk::os {

class TextWidth {
public:
    virtual ~TextWidth() = default;
    // The width of a text as it would be drawn.
    virtual int Of(std::u16string_view text) const = 0;
};

// The path as it fits in `width`; unchanged when it fits already.
//
// The root is a drive ("C:"), or server and share of a network path
// ("\\server\share\"). The name is the last part, with the separator in
// front of it, so that a middle cut back to a separator reads "\...\"; a
// path ending in a separator has no name and is all middle. The middle
// loses its last four characters and is cut back to its last separator,
// then "..." is added, while the whole is too wide and the middle has four
// characters or more; then the name loses four characters for "..." while
// it has five or more.
std::u16string ShortenPath(std::u16string_view path, int width, const TextWidth &measure);

} // namespace zk::os
