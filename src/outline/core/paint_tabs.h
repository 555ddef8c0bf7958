// Tab expansion of a row's text: each part before a tab is drawn at a pen
// position; the pen moves to the next stop after each tab.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace zk::lbx::paint {

struct TextRun {
    size_t start = 0;
    size_t length = 0;
    int32_t x = 0;
    bool operator==(const TextRun &) const = default;
};

// tabCount > 0: the n-th tab goes to stops[n] + textX while n < tabCount,
// after that to pen + stops[0]. tabCount -1 (cleared stops, default
// spacing): (n + 1) * unit * 2, unit being a quarter of the dialog base
// width. The last run is the text after the last tab.
std::vector<TextRun> LayoutTabs(std::u16string_view text, int32_t textX, int32_t tabCount, const int32_t *stops,
                                int32_t unit);

// The part of a text that LbxTextExtent measures under tab expansion.
std::u16string_view TextAfterLastTab(std::u16string_view text);

} // namespace zk::lbx::paint
