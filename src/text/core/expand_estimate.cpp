#include "text/core/expand.h"

namespace zk::text {
namespace {

// What each element may add: 12 characters a number, or all element strings
// together, as the first % followed (a comma skipped) by n or s decides.
uint64_t ElementShare(std::u16string_view text, const ArrayShape &shape, ElementSource &elements) {
    for (std::size_t i = text.find(u'%'); i != std::u16string_view::npos; i = text.find(u'%', i + 1)) {
        std::size_t letter = i + 1;
        if (letter < text.size() && text[letter] == u',')
            ++letter;
        if (letter >= text.size())
            return 0;
        if (text[letter] == u'n')
            return 12 * static_cast<uint64_t>(shape.size());
        if (text[letter] == u's') {
            uint64_t sum = 0;
            for (int64_t index = shape.low; index <= shape.last(); ++index)
                sum += elements.String(static_cast<int32_t>(index)).size();
            return sum;
        }
    }
    return 0;
}

} // namespace

uint64_t EstimateExpandSize(std::u16string_view text, const ArrayShape &shape, ElementSource &elements) {
    const uint64_t count = shape.size();
    const uint64_t extra = ElementShare(text, shape, elements);
    uint64_t size = text.size() + 1 + extra;

    const GroupFinder groups(text);
    for (std::size_t open = text.find(u'{'); open != std::u16string_view::npos;) {
        const std::optional<Group> group = groups.At(open);
        if (!group)
            break;
        if (group->code) {
            if (group->code->comma)
                size += count;
            if (group->code->letter == u's')
                size += group->length() * count + extra;
            else
                size += (group->length() + 12) * count;
        }
        open = text.find(u'{', group->close + 1);
    }
    return size;
}

} // namespace zk::text
