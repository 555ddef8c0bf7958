#include "controls/core/spin_model.h"

#include <algorithm>
#include <cstdint>

namespace zk::ctl {

namespace {

// The machine's 32-bit sums: the record's arithmetic is not checked for
// overflow, and wraps.
int32_t Wrap(int64_t n) { return static_cast<int32_t>(static_cast<uint32_t>(static_cast<uint64_t>(n))); }

// -k, kept in range for the most negative k.
int32_t Negated(int32_t k) { return k == INT32_MIN ? INT32_MAX : -k; }

// Padding beyond the ten digits of a 32-bit remainder is leading zeros
// only; an adjust of millions would make a text of millions of them.
constexpr int64_t kMostPlaces = 1024;

std::u16string Decimal(int64_t n) {
    const std::string text = std::to_string(n);
    return std::u16string(text.begin(), text.end());
}

} // namespace

int32_t ScaleByTen(int32_t n, int32_t k) {
    // Ten is 2 * 5, so 32 steps up wrap any value to 0 and it stays there.
    for (; k > 0 && n != 0; --k)
        n = Wrap(int64_t{n} * 10);
    for (; k < 0 && n != 0; ++k)
        n /= 10;
    return n;
}

std::u16string FormatValue(int32_t value, int32_t adjust) {
    if (adjust == 0)
        return Decimal(value);
    const int32_t whole = ScaleByTen(value, adjust);
    const int64_t rest = Wrap(int64_t{value} - ScaleByTen(whole, Negated(adjust)));
    std::u16string text = Decimal(whole);
    if (rest != 0) {
        const std::u16string digits = Decimal(rest < 0 ? -rest : rest);
        text += u'.';
        const auto places = static_cast<size_t>(std::clamp(-int64_t{adjust}, int64_t{0}, kMostPlaces));
        if (digits.size() < places)
            text.append(places - digits.size(), u'0');
        text += digits;
    }
    return text;
}

int32_t ParseValue(std::u16string_view text, int32_t adjust, const NumberReader &reader) {
    if (!reader.isValidNumber(text))
        return 0;
    const size_t point = text.find(u'.');
    int32_t whole = 0;
    if (!reader.integerOf(text.substr(0, point), whole))
        whole = 0;
    int32_t value = ScaleByTen(whole, Negated(adjust));
    if (point != std::u16string_view::npos && adjust < 0) {
        const size_t places = static_cast<size_t>(-int64_t{adjust});
        int32_t fraction = 0;
        if (!reader.integerOf(text.substr(point + 1, places), fraction))
            fraction = 0;
        value = Wrap(int64_t{value} + fraction);
    }
    return value;
}

namespace {

// The value a step starts from: false for an empty edit, which sets the
// minimum and ends the step.
bool StartStep(SpinValues &v, std::u16string_view editText, const NumberReader &reader) {
    if (editText.empty()) {
        v.value = v.minimum;
        return false;
    }
    if (v.increment != 0 && reader.isValidNumber(editText))
        v.value = ParseValue(editText, v.decimalAdjust, reader);
    return true;
}

} // namespace

void StepUp(SpinValues &v, std::u16string_view editText, const NumberReader &reader) {
    if (!StartStep(v, editText, reader))
        return;
    const int32_t m = std::max(Wrap(int64_t{v.value} + v.increment), v.minimum);
    v.value = m >= v.maximum ? v.maximum : m;
}

void StepDown(SpinValues &v, std::u16string_view editText, const NumberReader &reader) {
    if (!StartStep(v, editText, reader))
        return;
    const int32_t m = std::min(Wrap(int64_t{v.value} - v.increment), v.maximum);
    v.value = m <= v.minimum ? v.minimum : m;
}

bool AcceptsValue(const SpinValues &v, int32_t value) { return !(value < v.minimum && value > v.maximum); }

} // namespace zk::ctl
