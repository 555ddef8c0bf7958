#include "text/core/scan_reverse.h"

namespace zk::text {

int32_t ScanReverse(std::u16string_view text, int32_t start, std::u16string_view search, ReverseScanner &scanner) {
    const int64_t length = static_cast<int64_t>(text.size());
    if (length > INT32_MAX || start < -1 || start > length - 1)
        return -1;
    std::size_t position =
        start == -1 ? (text.empty() ? 0 : scanner.Previous(text, text.size())) : static_cast<std::size_t>(start);
    if (position > text.size())
        position = text.size();
    for (;;) {
        if (text.size() - position >= search.size() &&
            (search.empty() || scanner.EqualNoCase(text.data() + position, search.data(), search.size())))
            return static_cast<int32_t>(position);
        if (position == 0)
            return -1;
        // Always a step back, whatever the platform answers, so the walk ends.
        const std::size_t previous = scanner.Previous(text, position);
        position = previous < position ? previous : position - 1;
    }
}

} // namespace zk::text
