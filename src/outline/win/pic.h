// Pictures and fonts of the outline engine: the PIC record behind every
// picture handle, and the two per-list registries ("ZK:PicList",
// "ZK:FontList") that own what a list loaded for itself.
//
// lbx.h forward-declares PIC in zk::lbx; portable code that only passes
// pictures around (the menu's records) needs no more than that.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "zklib.h"

namespace zk::lbx {

// PIC.type
enum : uint8_t {
    PIC_TypeEmpty = 0,      // paints nothing
    PIC_TypeBitmap = 1,     // bitmap, optional mask
    PIC_TypeIcon = 2,       // icon from a module or a file
    PIC_TypeMemoryIcon = 3, // icon made from bytes in memory
};

// A loaded bitmap or icon. A picture handle is a PIC pointer; every PIC
// alive is known to the live-picture table from construction to
// destruction, so a handle can be checked before it is followed.
struct PIC {
    uint8_t type = PIC_TypeEmpty;
    int32_t height = 0;
    int32_t width = 0;
    HBITMAP bitmap = nullptr; // type 1
    HBITMAP mask = nullptr;   // type 1, may be null: the top-left colour made transparent
    HICON icon = nullptr;     // types 2 and 3
    uint16_t flags = 0;       // load flags as in effect (PIC_* of zklib/picture.h)
    std::wstring source;      // first load argument
    std::wstring name;        // second load argument

    PIC();
    // Frees bitmap and mask of type 1 and the icon of type 3 only: an icon
    // of type 2 is freed by ZelPicFree alone.
    ~PIC();
    PIC(const PIC &) = delete;
    PIC &operator=(const PIC &) = delete;
};

// Whether a pointer names a PIC that is alive now. Never reads through it.
bool PicIsLive(const void *pointer) noexcept;

// The PIC behind a picture handle, or null for 0, a stale or a forged handle.
PIC *PicFromHandle(INT_PTR handle) noexcept;
inline INT_PTR PicToHandle(const PIC *pic) noexcept { return reinterpret_cast<INT_PTR>(pic); }

// ZelPicLoad without its export frame: a new PIC (possibly empty, type 0),
// or null when the load failed. Flags are the caller's; the extension rule
// may add bits. May throw std::bad_alloc.
PIC *PicLoad(uint16_t flags, const wchar_t *source, const wchar_t *name);

// ZelPicFree: frees mask, bitmap and icon whatever the type, then the PIC.
// -87 for null or a pointer that is not a live PIC, else 0.
int32_t PicFree(const void *pointer) noexcept;

// ---- picture registry of a list ("ZK:PicList") -----------------------------

// The registry: an array of PIC pointers, null slots allowed (a set made
// with LbxPicNew is filled by index).
class CPicArray {
public:
    CPicArray() = default;
    explicit CPicArray(size_t size) : items_(size, nullptr) {}
    // Deletes every live element, owned or not. The normal end of a
    // registry is LbxPicFreeAll, which empties it first.
    ~CPicArray();
    CPicArray(const CPicArray &) = delete;
    CPicArray &operator=(const CPicArray &) = delete;

    int Count() const noexcept { return static_cast<int>(items_.size()); }
    // Out of range: throws InvalidArgException (frame/guard.h).
    PIC *At(int index) const;
    void SetAt(int index, PIC *pic);
    bool Contains(const PIC *pic) const noexcept;
    void Append(PIC *pic) { items_.push_back(pic); }
    const std::vector<PIC *> &Items() const noexcept { return items_; }
    void Clear() noexcept { items_.clear(); }

private:
    std::vector<PIC *> items_;
};

// The list's registry, or null.
CPicArray *LbxPicGet(HWND list) noexcept;
// Makes the registry if missing; appends pic unless null or already there.
// The registry, or null when it could not be made.
CPicArray *LbxPicAdd(HWND list, PIC *pic) noexcept;
// Frees an existing registry (LbxPicFreeAll) and stores a new one with
// `size` null slots. Null on failure.
CPicArray *LbxPicNew(HWND list, int size) noexcept;
// Deletes the entries loaded with PIC_ListOwned, then the registry, and
// removes the property. Entries without the bit stay alive.
void LbxPicFreeAll(HWND list) noexcept;

// ---- fonts -------------------------------------------------------------------

// One font handle of a registry; deleting the FONT deletes the handle.
struct FONT {
    HFONT font = nullptr;
    explicit FONT(HFONT handle) : font(handle) {}
    ~FONT();
    FONT(const FONT &) = delete;
    FONT &operator=(const FONT &) = delete;
};

class CFontArray {
public:
    CFontArray() = default;
    explicit CFontArray(size_t size) : items_(size, nullptr) {}
    ~CFontArray(); // deletes every element
    CFontArray(const CFontArray &) = delete;
    CFontArray &operator=(const CFontArray &) = delete;

    int Count() const noexcept { return static_cast<int>(items_.size()); }
    // The handle at an index (null slot: 0). Out of range: InvalidArgException.
    HFONT At(int index) const;
    // Replaces the slot; the old FONT is deleted.
    void SetAt(int index, HFONT font);
    // Index of a handle, -1 if absent.
    int Find(HFONT font) const noexcept;
    void Append(HFONT font);
    // Deletes every FONT except those holding `keep`, and empties the array.
    void FreeAllExcept(HFONT keep) noexcept;

private:
    std::vector<FONT *> items_;
};

CFontArray *LbxFontGet(HWND list) noexcept;
// Makes the registry if missing; adds a FONT for the handle unless 0 or
// already there. The registry, or null when it could not be made.
CFontArray *LbxFontAdd(HWND list, HFONT font) noexcept;
CFontArray *LbxFontNew(HWND list, int size) noexcept;
// Deletes each FONT unless its handle is the control's own (WM_GETFONT),
// then the registry, and removes the property.
void LbxFontFreeAll(HWND list) noexcept;

// ZelFontLoad without its frame: null on failure.
HFONT FontLoad(const wchar_t *face, int32_t points, uint32_t style) noexcept;

// What ZelFontGet and a saved outline tell of a font: face, size in points
// measured as selected in a DC of the active window, style bits
// (2 italic, 4 underline, 8 bold, 16 strike-out). False if the handle is
// no font.
struct FontFacts {
    std::wstring face;
    int32_t points = 0;
    uint16_t style = 0;
};
bool FontDescribe(HFONT font, FontFacts &facts) noexcept;

} // namespace zk::lbx
