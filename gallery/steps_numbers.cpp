// Number functions: bits, bytes and words, and the choice of a number.
#include "report.h"
#include "steps.h"
#include "zkhost.h"
#include "zklib.h"

namespace gallery {

void RunNumberSteps(Report &report) {
    report.Section(L"Number functions");
    // The high "byte" keeps all 24 bits above the low byte.
    report.Hex(L"ZelNumberHighByte(0x01020304)", ZelNumberHighByte(0x01020304u), 0x010203u);
    report.Hex(L"ZelNumberLowByte(0x01020304)", ZelNumberLowByte(0x01020304u), 0x04u);
    report.Hex(L"ZelNumberMakeLong(0x5678, 0x1234)", ZelNumberMakeLong(0x5678, 0x1234), 0x12345678u);

    uint32_t word = 0x0Fu;
    const uint32_t set = ZelNumberBitSet(&word, 0xF0u);
    report.Check(L"ZelNumberBitSet(&0x0F, 0xF0)", HexText(set) + L", word " + HexText(word),
                 set == 0xFFu && word == 0xFFu, L"0xFF, word 0xFF");
    const uint32_t cleared = ZelNumberBitClear(&word, 0x0Fu);
    report.Check(L"ZelNumberBitClear(&0xFF, 0x0F)", HexText(cleared) + L", word " + HexText(word),
                 cleared == 0xF0u && word == 0xF0u, L"0xF0, word 0xF0");

    HostNumber seven{}, nine{};
    HostNumberFromLong(7, &seven);
    HostNumberFromLong(9, &nine);
    HostNumber chosen = ZelNumberChoose(0, seven, nine);
    int32_t value = -1;
    HostNumberToLong(&chosen, &value);
    report.Number(L"ZelNumberChoose(0, 7, 9)", value, 9);
}

} // namespace gallery
