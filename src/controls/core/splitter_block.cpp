#include "controls/core/splitter_block.h"

namespace zk::ctl {

namespace {

SysColorSource sysColors = nullptr;

// The system colour indices of the block's defaults.
constexpr int32_t kWindowFrame = 6, kButtonFace = 15, kButtonShadow = 16, kButtonHighlight = 20;

uint32_t Default(int32_t index) { return sysColors ? sysColors(index) : 0; }

} // namespace

ZK_IMPLEMENT_SERIAL(SPropSplitter)

void BindSplitterColours(SysColorSource source) { sysColors = source; }

SPropSplitter::SPropSplitter()
    : frameColor(Default(kWindowFrame)), faceColor(Default(kButtonFace)), lightColor(Default(kButtonHighlight)),
      shadowColor(Default(kButtonShadow)) {}

void SPropSplitter::Serialize(CArchive &ar) {
    uint32_t *const colours[] = {&frameColor, &faceColor, &lightColor, &shadowColor};
    int16_t *const metrics[] = {&metricA, &metricB, &metricC, &bevelLines, &orientation};
    if (ar.IsStoring()) {
        ar.WriteU32(kSplitterBlockVersion);
        for (uint32_t *colour : colours)
            ar.WriteU32(*colour);
        for (int16_t *metric : metrics)
            ar.WriteI32(*metric);
        ar.WriteFlag(displayHandle);
        ar.WriteFlag(invertWhenDragging);
        return;
    }
    if (ar.ReadU32() == 0)
        return;
    for (uint32_t *colour : colours)
        *colour = ar.ReadU32();
    for (int16_t *metric : metrics)
        *metric = static_cast<int16_t>(ar.ReadU32() & 0xFFFF);
    displayHandle = ar.ReadFlag();
    invertWhenDragging = ar.ReadFlag();
}

} // namespace zk::ctl
