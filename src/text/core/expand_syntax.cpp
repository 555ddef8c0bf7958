#include "text/core/expand_syntax.h"

#include <algorithm>

namespace zk::text {

GroupFinder::GroupFinder(std::u16string_view templateText)
    : text_(templateText), lastClose_(templateText.rfind(u'}')) {}

std::optional<Group> GroupFinder::At(std::size_t open) const {
    // No } after this { means none after any later { either: answered
    // without a scan, which keeps a run of unmatched braces linear.
    if (lastClose_ == std::u16string_view::npos || open >= lastClose_)
        return std::nullopt;
    Group group{open, text_.find(u'}', open + 1), std::nullopt};
    for (std::size_t i = open + 1; i < group.close; ++i) {
        if (text_[i] != u'%')
            continue;
        std::size_t letter = i + 1;
        const bool comma = letter < group.close && text_[letter] == u',';
        if (comma)
            ++letter;
        if (letter < group.close && IsElementCode(text_[letter])) {
            group.code = GroupCode{i, letter + 1, comma, text_[letter]};
            break;
        }
    }
    return group;
}

int64_t ArrayShape::last() const {
    if (count <= 0)
        return static_cast<int64_t>(low) - 1;
    return std::min<int64_t>(high, static_cast<int64_t>(low) + count - 1);
}

} // namespace zk::text
