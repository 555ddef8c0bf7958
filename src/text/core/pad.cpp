#include "text/core/pad.h"

#include <algorithm>

namespace zk::text {

std::u16string Pad(std::u16string_view text, std::size_t width) {
    std::u16string out(text.substr(0, std::min(text.size(), width)));
    out.resize(width, u' ');
    return out;
}

} // namespace zk::text
