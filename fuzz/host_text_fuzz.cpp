// Texts of any shape into the host core's readers and the picture formatter.
// Beyond not crashing, what is read must come back through its own text.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "core/hostnum.h"

namespace {

constexpr std::u16string_view kDefaultPicture = u"yyyy-MM-dd-hh.mm.ss.mmmmmm";

bool same(const HostNumber &a, const HostNumber &b) {
    return a.length == b.length && std::memcmp(a.digits, b.digits, a.length <= 24 ? a.length : 24) == 0;
}

void check(bool condition) {
    if (!condition)
        __builtin_trap();
}

void texts(std::u16string_view text) {
    HostNumber n{};
    if (zkh::NumberFromText(text, n)) {
        HostNumber back{};
        check(zkh::NumberFromText(zkh::NumberToText(n), back) && same(back, n));
        check(zkh::NumberCompare(n, n) == 0);
        (void)zkh::NumberToDouble(n);
    } else {
        check(n.length == 0);
    }

    HostDateTime d{};
    if (zkh::DateParse(text, d)) {
        HostDateTime back{};
        check(zkh::DateParse(zkh::DateFormat(d, kDefaultPicture), back) && same(back, d));
    } else {
        check(d.length == 0);
    }

    const bool valid = zkh::PictureIsValid(text);
    const HostDateTime sample = zkh::DateFromParts(2020, 5, 17, 13, 45, 10, 123456);
    const std::u16string shown = zkh::DateFormat(sample, text);
    check(!valid || !shown.empty());
    (void)zkh::DateFormat(d, text);
}

// Raw bytes as two records: readers must stay inside the 24 digit bytes.
void records(const uint8_t *data) {
    HostNumber a, b;
    std::memcpy(&a, data, sizeof a);
    std::memcpy(&b, data + sizeof a, sizeof b);
    HostNumber sum{};
    sum.length = static_cast<uint8_t>(zkh::NumberAdd(sum.digits, a.digits, a.length, b.digits, b.length));
    sum.length = static_cast<uint8_t>(zkh::NumberSubtract(sum.digits, sum.digits, sum.length, b.digits, b.length));
    double addend = 0;
    std::memcpy(&addend, data, sizeof addend);
    sum.length = static_cast<uint8_t>(zkh::NumberAddDouble(sum.digits, sum.digits, sum.length, addend));
    check(zkh::NumberCompare(a, b) == -zkh::NumberCompare(b, a));
    (void)zkh::NumberToText(a);
    (void)zkh::NumberToDouble(b);
    int64_t whole = 0;
    (void)zkh::NumberToInt64(a, whole);
    (void)zkh::DateToParts(a);
    (void)zkh::DateFormat(b, kDefaultPicture);
    int fields[7];
    std::memcpy(fields, data, sizeof fields);
    (void)zkh::DateToParts(
        zkh::DateFromParts(fields[0], fields[1], fields[2], fields[3], fields[4], fields[5], fields[6]));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    std::u16string text(size / 2, u'\0');
    for (size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<char16_t>(data[2 * i] | data[2 * i + 1] << 8);
    texts(text);
    if (size >= 2 * sizeof(HostNumber))
        records(data);
    return 0;
}
