// Capitalising a text as a proper name: o'brien macdonald -> O'Brien MacDonald.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zk::text {

// Case mapping in place, as the platform does it (CharUpperBuffW and
// CharLowerBuffW there).
class CaseMap {
public:
    virtual ~CaseMap() = default;
    virtual void Upper(char16_t *text, std::size_t count) = 0;
    virtual void Lower(char16_t *text, std::size_t count) = 0;
};

// The 31 characters that end a word for capitalisation, in their order.
inline constexpr std::u16string_view kProperPunctuation = u"~!@#$%^&*()_+|-=\\{}[]:\";'<>?,./";

// Each word upper case first, lower case after; punctuation ends a word as a
// space does. Then the character after the first "Mac" and the one after the
// first "Mc" go to upper case unless they are spaces, applied blindly:
// machine gives MacHine. Throws std::bad_alloc when the copy cannot be made.
std::u16string Proper(std::u16string_view text, CaseMap &caseMap);

} // namespace zk::text
