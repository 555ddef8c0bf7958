#include "text/core/trim.h"

namespace zk::text {

std::u16string_view TrimLeft(std::u16string_view text, SpaceTest isSpace) {
    std::size_t first = 0;
    while (first < text.size() && isSpace(text[first]))
        ++first;
    return text.substr(first);
}

std::u16string_view TrimRight(std::u16string_view text, SpaceTest isSpace) {
    // One forward pass: the mark is the start of the current run of white
    // space, cleared by any other character; the text ends at a mark left set.
    constexpr std::size_t kNoMark = std::u16string_view::npos;
    std::size_t mark = kNoMark;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!isSpace(text[i]))
            mark = kNoMark;
        else if (mark == kNoMark)
            mark = i;
    }
    return mark == kNoMark ? text : text.substr(0, mark);
}

std::u16string_view Trim(std::u16string_view text, SpaceTest isSpace) {
    return TrimRight(TrimLeft(text, isSpace), isSpace);
}

} // namespace zk::text
