// SPropSplitter: the splitter's property block. The four colours are
// stored but the bar paints in the system's colours; the three metrics are
// stored only.
#pragma once

#include <cstdint>

#include "frame/core/archive.h"

namespace zk::ctl {

inline constexpr uint32_t kSplitterBlockVersion = 1;

// Orientation values: a horizontal bar lies between an upper and a lower
// child, a vertical bar between a left and a right one.
inline constexpr int16_t kHorizontalBar = 0;
inline constexpr int16_t kVerticalBar = 1;

class SPropSplitter : public CObject {
    ZK_DECLARE_SERIAL(SPropSplitter)

public:
    // The colours start as the system's (see BindSplitterColours).
    SPropSplitter();

    uint32_t frameColor;  // COLOR_WINDOWFRAME
    uint32_t faceColor;   // COLOR_BTNFACE
    uint32_t lightColor;  // COLOR_BTNHIGHLIGHT
    uint32_t shadowColor; // COLOR_BTNSHADOW
    int16_t metricA = 2;
    int16_t metricB = 0;
    int16_t metricC = 1;
    int16_t bevelLines = 1; // below 1: no edge lines
    int16_t orientation = kVerticalBar;
    int32_t displayHandle = 0;      // 1: a black handle at the bar's far end
    int32_t invertWhenDragging = 1; // 1: the band covers the handle too

    // u32 version 1; the four colours as u32; the five i16 fields as one
    // u32 each (the low 16 bits are the field); displayHandle and
    // invertWhenDragging as one byte each. Version 0 reads no more.
    void Serialize(CArchive &ar) override;
};

// Where new blocks take their colours from: GetSysColor of an index. Bound
// as the library loads; until then new blocks hold 0.
using SysColorSource = uint32_t (*)(int32_t index);
void BindSplitterColours(SysColorSource source);

} // namespace zk::ctl
