#include "outline/core/paint_tabs.h"

namespace zk::lbx::paint {

std::vector<TextRun> LayoutTabs(std::u16string_view text, int32_t textX, int32_t tabCount, const int32_t *stops,
                                int32_t unit) {
    std::vector<TextRun> runs;
    int32_t pen = textX;
    int32_t n = 0;
    size_t start = 0;
    for (size_t tab = text.find(u'\t'); tab != std::u16string_view::npos; tab = text.find(u'\t', start)) {
        runs.push_back({start, tab - start, pen});
        if (tabCount > 0 && stops) {
            // Positions stay in 32 bits as the platform's coordinates do.
            pen = n < tabCount ? static_cast<int32_t>(int64_t{stops[n]} + textX)
                               : static_cast<int32_t>(int64_t{pen} + stops[0]);
        } else {
            pen = static_cast<int32_t>((int64_t{n} + 1) * unit * 2);
        }
        ++n;
        start = tab + 1;
    }
    runs.push_back({start, text.size() - start, pen});
    return runs;
}

std::u16string_view TextAfterLastTab(std::u16string_view text) {
    const size_t tab = text.rfind(u'\t');
    return tab == std::u16string_view::npos ? text : text.substr(tab + 1);
}

} // namespace zk::lbx::paint
