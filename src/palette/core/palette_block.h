// The palette's data as it is stored: a colour, a menu entry, the two
// arrays that own them, and SPropPalette, the property block of the form's
// palette. The class names are those written into the archive.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "frame/core/archive.h"
#include "frame/core/obarray.h"

namespace zk::pal {

// Version word of every record here: a reader that finds 0 leaves the
// record's fields as they are.
inline constexpr uint32_t kPaletteRecordVersion = 1;
inline constexpr int32_t kDefaultRecentMax = 8;

class SPaletteColor : public CObject {
    ZK_DECLARE_SERIAL(SPaletteColor)

public:
    SPaletteColor() = default;
    explicit SPaletteColor(uint32_t value) : colour(value) {}

    uint32_t colour = 0; // a COLORREF

    // u32 version, u32 colour.
    void Serialize(CArchive &ar) override;
};

class SPaletteMenu : public CObject {
    ZK_DECLARE_SERIAL(SPaletteMenu)

public:
    SPaletteMenu() = default;
    SPaletteMenu(std::u16string entryText, uint16_t entryId) : text(std::move(entryText)), id(entryId) {}

    std::u16string text;
    uint16_t id = 0; // 0 is the other-colour entry's

    // u32 version, the text, u16 id.
    void Serialize(CArchive &ar) override;
};

// The owning arrays; a null element (a null tag in a block) stays null.
class CColorArray : public ObArray<SPaletteColor> {};
class CMenuArray : public ObArray<SPaletteMenu> {};

// A deep copy: the copy never shares an element with its source.
void CopyElements(const CColorArray &from, CColorArray &to);
void CopyElements(const CMenuArray &from, CMenuArray &to);

class SPropPalette : public CObject {
    ZK_DECLARE_SERIAL(SPropPalette)

public:
    // The reset state and the eight main colours red, green, blue, yellow,
    // magenta, cyan, black and white.
    SPropPalette();
    SPropPalette(const SPropPalette &other);
    SPropPalette &operator=(const SPropPalette &other);
    ~SPropPalette() override = default;

    // Flags 0, 0, 1, 0, maximum 8, both arrays empty: a block read from
    // storage starts here, so the eight defaults exist only if stored.
    void Reset();

    int32_t autoSize = 0;      // style bit 1
    int32_t dropDown = 0;      // style bit 2
    int32_t enableRecent = 1;  // style bit 4
    int32_t keepSelection = 0; // style bit 8
    CColorArray mainColors;
    CMenuArray menus;
    int32_t recentMax = kDefaultRecentMax;

    // The two arrays, one archive's class indices shared between them; then
    // u32 version, the four flags as one byte each, i32 maximum. Reading
    // resets first; with version 0 the flags and maximum stay as reset.
    void Serialize(CArchive &ar) override;
};

} // namespace zk::pal
