#include "diag/core/elapsed_text.h"

namespace zk::diag {
namespace {

void AppendNumber(std::u16string &out, uint32_t value, int minDigits) {
    char16_t digits[10];
    int n = 0;
    do {
        digits[n++] = static_cast<char16_t>(u'0' + value % 10);
        value /= 10;
    } while (value);
    for (int i = n; i < minDigits; ++i)
        out += u'0';
    while (n)
        out += digits[--n];
}

} // namespace

std::u16string ElapsedText(uint32_t hundredths) {
    std::u16string text;
    AppendNumber(text, hundredths / 6000, 1);
    text += u':';
    AppendNumber(text, hundredths % 6000 / 100, 2);
    text += u'.';
    AppendNumber(text, hundredths % 100, 2);
    return text;
}

} // namespace zk::diag
