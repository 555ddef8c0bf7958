#include "palette/core/palette_block.h"

namespace zk::pal {

ZK_IMPLEMENT_SERIAL(SPaletteColor)
ZK_IMPLEMENT_SERIAL(SPaletteMenu)
ZK_IMPLEMENT_SERIAL(SPropPalette)

void SPaletteColor::Serialize(CArchive &ar) {
    if (ar.IsStoring()) {
        ar.WriteU32(kPaletteRecordVersion);
        ar.WriteU32(colour);
        return;
    }
    if (ar.ReadU32() == 0)
        return;
    colour = ar.ReadU32();
}

void SPaletteMenu::Serialize(CArchive &ar) {
    if (ar.IsStoring()) {
        ar.WriteU32(kPaletteRecordVersion);
        ar.WriteString(text);
        ar.WriteU16(id);
        return;
    }
    if (ar.ReadU32() == 0)
        return;
    text = ar.ReadString();
    id = ar.ReadU16();
}

namespace {

template <class Element, class Array>
void Copy(const Array &from, Array &to) {
    to.RemoveAll();
    to.items.reserve(from.size());
    for (const auto &element : from.items)
        to.Add(element ? std::make_unique<Element>(*element) : nullptr);
}

constexpr uint32_t kDefaultColours[] = {0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF, 0xFF00FF, 0xFFFF00, 0x000000, 0xFFFFFF};

} // namespace

void CopyElements(const CColorArray &from, CColorArray &to) { Copy<SPaletteColor>(from, to); }
void CopyElements(const CMenuArray &from, CMenuArray &to) { Copy<SPaletteMenu>(from, to); }

SPropPalette::SPropPalette() {
    Reset();
    for (uint32_t colour : kDefaultColours)
        mainColors.Add(std::make_unique<SPaletteColor>(colour));
}

SPropPalette::SPropPalette(const SPropPalette &other) : CObject() { *this = other; }

SPropPalette &SPropPalette::operator=(const SPropPalette &other) {
    if (this == &other)
        return *this;
    Reset();
    autoSize = other.autoSize;
    dropDown = other.dropDown;
    enableRecent = other.enableRecent;
    keepSelection = other.keepSelection;
    recentMax = other.recentMax;
    CopyElements(other.mainColors, mainColors);
    CopyElements(other.menus, menus);
    return *this;
}

void SPropPalette::Reset() {
    autoSize = 0;
    dropDown = 0;
    enableRecent = 1;
    keepSelection = 0;
    recentMax = kDefaultRecentMax;
    mainColors.RemoveAll();
    menus.RemoveAll();
}

void SPropPalette::Serialize(CArchive &ar) {
    int32_t *const flags[] = {&autoSize, &dropDown, &enableRecent, &keepSelection};
    if (ar.IsStoring()) {
        mainColors.Serialize(ar);
        menus.Serialize(ar);
        ar.WriteU32(kPaletteRecordVersion);
        for (int32_t *flag : flags)
            ar.WriteFlag(*flag);
        ar.WriteI32(recentMax);
        return;
    }
    Reset();
    mainColors.Serialize(ar);
    menus.Serialize(ar);
    if (ar.ReadU32() == 0)
        return;
    for (int32_t *flag : flags)
        *flag = ar.ReadFlag();
    recentMax = ar.ReadI32();
}

} // namespace zk::pal
