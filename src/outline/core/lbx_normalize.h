// The text rules of adopted lists: every text stored in an item is
// normalised in place, its length kept, by the list's case style.
#pragma once

#include <cstddef>
#include <cstdint>

#include "outline/core/lbx.h"
#include "text/core/proper.h"

namespace zk::lbx {

// What the rules ask of the platform: case mapping in place
// (CharUpperBuffW, CharLowerBuffW), the lower-case test (IsCharLowerW) and a
// whole-text compare without regard to case (lstrcmpiW).
class LbxCaseRules : public zk::text::CaseMap {
public:
    virtual bool IsLower(char16_t c) = 0;
    virtual int CompareNoCase(const char16_t *a, const char16_t *b) = 0;
};

// Words capitalised: characters of the punctuation set count as blanks for
// the word pass and are put back; then the character after the first "Mac"
// and after the first "Mc" goes up unless it is a blank (MACHINE gives
// MacHine). Without memory for the punctuation the text stays as it was.
void LbxProperCase(char16_t *text, std::size_t count, LbxCaseRules &rules);

// Upper case wins over lower case; proper case touches only a text that has
// no lower-case letter. Throws std::bad_alloc only when the text's
// characters are shared and cannot be copied.
void LbxNormalizeText(uint32_t style, LbxText &text, LbxCaseRules &rules);

} // namespace zk::lbx
