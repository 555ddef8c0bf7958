// The spin field's value: a scaled integer whose text shows as many decimal
// places as the (negative) decimal adjust says, stepped by the increment
// between a minimum and a maximum. Text form, parsing and stepping are
// pure; the number parsing itself is the host's, reached through
// NumberReader.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zk::ctl {

// The first five fields of the spin record, in their order.
struct SpinValues {
    int32_t value = 0;
    int32_t minimum = 1;
    int32_t maximum = 0x7FFFFFFF;
    int32_t increment = 1;
    int32_t decimalAdjust = 0; // negative: that many decimal places
};

// Bits of the record's flags.
inline constexpr uint16_t SPF_Design = 0x0001;      // design mode, no edit
inline constexpr uint16_t SPF_UpDown = 0x0002;      // up button pressed
inline constexpr uint16_t SPF_DownDown = 0x0004;    // down button pressed
inline constexpr uint16_t SPF_UpClicked = 0x0008;   // up released inside, for the next paint
inline constexpr uint16_t SPF_DownClicked = 0x0010; // down released inside, for the next paint

// The host's number parsing: whether a text is a number, and the whole
// number a text stands for (false when it reads as none).
struct NumberReader {
    bool (*isValidNumber)(std::u16string_view text);
    bool (*integerOf)(std::u16string_view text, int32_t &value);
};

// k positive multiplies by 10 k times, negative divides by 10 (truncating)
// -k times. Sums wrap as the 32-bit machine's do.
int32_t ScaleByTen(int32_t n, int32_t k);

// "1234" with adjust -2 is "12.34", "1205" is "12.05", "1200" is "12": a
// whole number shows no decimals, and a fraction with a zero whole part
// shows no sign. Adjust 2 shows 12 as "1200".
std::u16string FormatValue(int32_t value, int32_t adjust);

// The value of a text: 0 for no number. The whole part is scaled by the
// adjust; up to -adjust characters after the first "." are read as a whole
// number of their own and added unscaled: with adjust -2, "12.5" is 1205
// and "-1.25" is -75.
int32_t ParseValue(std::u16string_view text, int32_t adjust, const NumberReader &reader);

// One step up or down from the text in the edit, as ZKM_SpinUp and
// ZKM_SpinDown take it: an empty text gives the minimum; a text that is a
// number (with an increment not 0) is read first, anything else keeps the
// stored value. No wrap-around at the ends.
void StepUp(SpinValues &values, std::u16string_view editText, const NumberReader &reader);
void StepDown(SpinValues &values, std::u16string_view editText, const NumberReader &reader);

// A held button repeats every 75 ms once 300 ms have passed since the
// press; tick counts wrap.
inline constexpr uint32_t kRepeatPeriod = 75;
inline constexpr uint32_t kRepeatDelay = 300;
inline bool RepeatDue(uint32_t now, uint32_t pressTick) { return now - pressTick >= kRepeatDelay; }

// ZKM_SpinSetValue refuses only a value below the minimum that is also
// above the maximum, which needs a minimum above the maximum.
bool AcceptsValue(const SpinValues &values, int32_t value);

} // namespace zk::ctl
