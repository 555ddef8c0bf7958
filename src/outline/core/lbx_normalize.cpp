#include "outline/core/lbx_normalize.h"

#include <new>
#include <string_view>
#include <vector>

namespace zk::lbx {

namespace {

struct Taken {
    std::size_t at;
    char16_t character;
};

// The first `prefix` in the text, with case; the character after it goes up
// unless it is a blank.
void RaiseAfterFirst(char16_t *text, std::size_t count, std::u16string_view prefix, LbxCaseRules &rules) {
    const std::u16string_view view(text, count);
    const std::size_t at = view.find(prefix);
    if (at == std::u16string_view::npos || at + prefix.size() >= count) {
        return;
    }
    if (text[at + prefix.size()] != u' ') {
        rules.Upper(&text[at + prefix.size()], 1);
    }
}

} // namespace

void LbxProperCase(char16_t *text, std::size_t count, LbxCaseRules &rules) {
    std::vector<Taken> taken;
    try {
        for (std::size_t i = 0; i < count; ++i) {
            if (zk::text::kProperPunctuation.find(text[i]) != std::u16string_view::npos) {
                taken.push_back({i, text[i]});
            }
        }
    } catch (const std::bad_alloc &) {
        return; // no room to remember the punctuation: the text stays as it was
    }
    for (const Taken &t : taken) {
        text[t.at] = u' ';
    }
    bool wordStart = true;
    for (std::size_t i = 0; i < count; ++i) {
        if (text[i] == u' ') {
            wordStart = true;
        } else if (wordStart) {
            rules.Upper(&text[i], 1);
            wordStart = false;
        } else {
            rules.Lower(&text[i], 1);
        }
    }
    for (const Taken &t : taken) {
        text[t.at] = t.character;
    }
    RaiseAfterFirst(text, count, u"Mac", rules);
    RaiseAfterFirst(text, count, u"Mc", rules);
}

void LbxNormalizeText(uint32_t style, LbxText &text, LbxCaseRules &rules) {
    if (text.empty()) {
        return;
    }
    if (style & LBX_StyleUpperCase) {
        rules.Upper(text.mutableData(), text.size());
        return;
    }
    if (style & LBX_StyleLowerCase) {
        rules.Lower(text.mutableData(), text.size());
        return;
    }
    if (style & LBX_StyleProperCase) {
        for (char16_t c : text.view()) {
            if (rules.IsLower(c)) {
                return;
            }
        }
        LbxProperCase(text.mutableData(), text.size(), rules);
    }
}

} // namespace zk::lbx
