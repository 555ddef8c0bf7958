#include "text/core/proper.h"

#include <cstdint>
#include <new>
#include <vector>

namespace zk::text {
namespace {

struct Punctuation {
    uint32_t index;
    char16_t character;
};

// Punctuation is taken out for the word pass and put back after it. Without
// room for the records the text stays as it is and punctuation joins words.
std::vector<Punctuation> TakeOutPunctuation(std::u16string &text) {
    std::vector<Punctuation> taken;
    try {
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (kProperPunctuation.find(text[i]) != std::u16string_view::npos)
                taken.push_back({static_cast<uint32_t>(i), text[i]});
        }
    } catch (const std::bad_alloc &) {
        return {};
    }
    for (const Punctuation &p : taken)
        text[p.index] = u' ';
    return taken;
}

void CapitaliseWords(std::u16string &text, CaseMap &caseMap) {
    // A space starts a word: its first character goes up, the rest of the
    // word down, one call per run.
    std::size_t i = 0;
    while (i < text.size()) {
        if (text[i] == u' ') {
            ++i;
            continue;
        }
        caseMap.Upper(&text[i], 1);
        std::size_t end = i + 1;
        while (end < text.size() && text[end] != u' ')
            ++end;
        if (end > i + 1)
            caseMap.Lower(&text[i + 1], end - i - 1);
        i = end;
    }
}

// The character `offset` places after the first `prefix`, if it is there
// and not a space, goes to upper case.
void RaiseAfterFirst(std::u16string &text, std::u16string_view prefix, std::size_t offset, CaseMap &caseMap) {
    const std::size_t at = text.find(prefix);
    if (at == std::u16string::npos || at + offset >= text.size())
        return;
    if (text[at + offset] != u' ')
        caseMap.Upper(&text[at + offset], 1);
}

} // namespace

std::u16string Proper(std::u16string_view source, CaseMap &caseMap) {
    std::u16string text(source);
    const std::vector<Punctuation> taken = TakeOutPunctuation(text);
    CapitaliseWords(text, caseMap);
    for (const Punctuation &p : taken)
        text[p.index] = p.character;
    RaiseAfterFirst(text, u"Mac", 3, caseMap);
    RaiseAfterFirst(text, u"Mc", 2, caseMap);
    return text;
}

} // namespace zk::text
