// The chief header of the outline engine: the four records held per adopted
// list, the style and item bits that are a contract with the host's include
// file, and the geometry sums that painting and the hit test share.
//
// Portable: no platform header. Handles of the platform (windows, fonts,
// brushes, local memory) are held as void pointers, window procedures as
// integers; the Win32 side converts them where it uses them.
#pragma once

#include <cstdint>

#include "outline/core/lbx_text.h"
#include "zklib/list.h" // the style bits, item flags and ZKM_Lbx* messages

namespace zk::lbx {

// A loaded bitmap or icon; the picture handle of the exports. The record
// belongs to the picture registries; items hold the pointer only.
struct PIC;

struct LbxItem;
struct LbxNode;

// Bits of LbxParent.parentFlags.
inline constexpr uint16_t LBX_ParentFocusKnown = 0x0001; // the list had focus through a known route
inline constexpr uint16_t LBX_ParentKeepItems = 0x0002;  // a row goes on purpose: keep its item

// Bits of LbxChild.runFlags.
inline constexpr uint16_t LBX_ChildNoErase = 0x0002;  // background erasing suppressed
inline constexpr uint16_t LBX_ChildPaintOff = 0x0004; // the list's own painting is off (WM_SETREDRAW 0)

// Style bits that adopt a control (and change its window style).
inline constexpr uint32_t LBX_StyleAdoptMask = 0x08FFFFFFu;
// The four connector bits of an item.
inline constexpr uint32_t LBX_ItemConnectors = 0x000F0000u;

// One per parent window, in its property "ZK:ParentLbx": a moveable,
// zero-initialised local block, locked for each access.
struct LbxParent {
    std::uintptr_t parentProc; // the procedure LbxParentWndProc replaced
    uint16_t parentFlags;      // LBX_Parent* bits
};

// One per adopted list or combo box, in its property "ZK:ChildLbx": a
// moveable, zero-initialised local block. Plain data: it is copied out whole
// by LbxGetChildCopy.
struct LbxChild {
    std::uintptr_t childProc; // the control's former procedure: "the base procedure"
    uint16_t runFlags;        // LBX_Child* bits
    uint32_t style;           // LBX_Style* bits; LBX_StyleOwnerDraw set means adopted
    uint32_t bkColor;         // background, refreshed at each measure and paint
    void *bkBrush;            // combo box: solid brush of bkColor (HBRUSH)
    int32_t indent;           // indent step in half average character widths
    int32_t textHeight;       // character height of the font measured last; 0 after a font change
    void *editWindow;         // combo box: its edit, id 1001 (HWND)
    int32_t tabCount;         // 0 no tab expansion; -1 stops cleared, default spacing
    void *tabStops;           // local memory handle (HLOCAL) of tabCount i32 pixel positions
    uint16_t userWord;        // opaque, for ZKM_LbxUserRecord
    char userText[260];       // opaque NUL-terminated bytes, for ZKM_LbxUserRecord
};

// One per row or hidden tree entry, made with plain new. A row's data word
// holds its address. Constructing and destroying an item enters it into and
// takes it out of the table of live handles, so that LbxIsItem never reads
// memory that is not an item.
struct LbxItem {
    LbxNode *node = nullptr;    // the tree node, or null in a list used flat
    PIC *picNormal = nullptr;   // shown when the row is not selected; not owned
    PIC *picSelected = nullptr; // shown when the row is selected; not owned
    void *font = nullptr;       // HFONT: 0 until the first measure stores the control's font
    uint32_t color = 0;         // text colour, 24 bits used
    uint32_t flags = 0;         // LBX_Item* bits and the application's bits 0 to 15
    int32_t value = 0;          // the application's value for the row
    LbxText text;               // the row's text, kept normalised
    int32_t textByRef = 0;      // one-shot switch of the text query
    char16_t magic[4] = {u'L', u'B', u'X', 0};
    LbxItem *self; // the record's own address while it lives

    LbxItem();
    ~LbxItem();
    LbxItem(const LbxItem &) = delete;
    LbxItem &operator=(const LbxItem &) = delete;
};

// One per entry of an outline, made with plain new; also entered into the
// table of live handles, since its address is the item handle of the exports.
struct LbxNode {
    LbxItem *item = nullptr;   // owned by the node once linked
    void *window = nullptr;    // HWND of the list it belongs to
    int32_t level = 0;         // -1 root, 0 top level
    LbxNode *parent = nullptr; // null only on the root
    LbxNode *firstChild = nullptr;
    LbxNode *lastChild = nullptr;
    LbxNode *next = nullptr; // next sibling
    LbxNode *prev = nullptr; // previous sibling

    LbxNode();
    ~LbxNode();
    LbxNode(const LbxNode &) = delete;
    LbxNode &operator=(const LbxNode &) = delete;
};

// Whether a data word or pointer is a live LbxItem: false for 0 and -1, for
// any address that is not a live item, and unless magic is "LBX" and self
// is the pointer. Never reads memory that is not an item.
bool LbxIsItem(const void *pointer) noexcept;
inline bool LbxIsItem(std::uintptr_t word) noexcept { return LbxIsItem(reinterpret_cast<const void *>(word)); }

// Whether a pointer is a live LbxNode (an item handle of the exports).
bool LbxIsNode(const void *pointer) noexcept;

// ---- geometry shared by painting and the hit test of the box ---------------

struct LbxRect {
    int32_t left, top, right, bottom;
};

// x of the tree line of `level` in a row starting at `left`; `step` is one
// level's width. Level 1 lies just inside the row; level 0 has no line.
constexpr int32_t LbxLineX(int32_t step, int32_t level, int32_t left) {
    return step / 2 + (level - 1) * step + 2 + left;
}

constexpr int32_t LbxMidY(const LbxRect &r) { return (r.bottom - r.top) / 2 + r.top; }

// The 9 by 9 box centred on x, y.
constexpr LbxRect LbxBoxRect(int32_t x, int32_t y) { return {x - 4, y - 4, x + 5, y + 5}; }

} // namespace zk::lbx
