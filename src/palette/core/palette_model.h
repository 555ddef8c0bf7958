// The colour palette as a model: its block (flags, main colours, menu
// entries, recent maximum), the recent colours and the internal menu that
// no block holds, the focus cell and the twelve colour roles. It needs no
// window; the control's window attaches its effects, a view for what only
// the window can do (lay out with its font, size itself, system colours and
// strings) and the layout, and from then on receives the model's
// invalidations and notifications.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "frame/core/effects.h"
#include "frame/core/roles.h"
#include "palette/core/palette_block.h"
#include "palette/core/palette_layout.h"
#include "zklib/palette.h"

// The platform's header names a macro InsertMenu; the model's operation of
// that name is the one meant wherever this header is read.
#ifdef InsertMenu
#undef InsertMenu
#endif

namespace zk::pal {

inline constexpr int32_t kRoleCount = PALR_Count;
inline constexpr int32_t kRecentMaxLimit = 255;

// What the model asks of the control's window besides the effects every
// control has.
class PaletteView {
public:
    // RecalcLayout: the font's metrics and the zones from the client area.
    virtual void RecalcLayout() = 0;
    // Size to fit: with auto-size 1 the window takes the frame's size.
    virtual void FitWindow() = 0;
    virtual uint32_t SysColor(int32_t index) const = 0;
    // A string resource of the library.
    virtual std::u16string LoadText(uint32_t id) const = 0;
    // The window's handle as a message's wParam carries it.
    virtual uintptr_t Handle() const = 0;

protected:
    ~PaletteView() = default;
};

class PaletteModel {
public:
    PaletteModel();
    PaletteModel(const PaletteModel &) = delete;
    PaletteModel &operator=(const PaletteModel &) = delete;

    // The window that shows the model; null for none. The model owns none.
    void AttachView(ControlEffects *effects, PaletteView *view, const GridLayout *layout) {
        effects_ = effects;
        view_ = view;
        layout_ = layout;
    }
    bool Created() const { return effects_ && effects_->IsCreated(); }

    // ---- block, style ---------------------------------------------------------
    const SPropPalette &Block() const { return block_; }
    // The Serialize of the window class that holds the block: the block,
    // then a u32 version 1 that a reader reads and ignores. Reading
    // replaces the block and does nothing more.
    void SerializeBlock(CArchive &ar);
    bool DropDown() const { return block_.dropDown == 1; }
    bool KeepSelection() const { return block_.keepSelection == 1; }
    bool RecentEnabled() const { return block_.enableRecent == 1; }
    // Assigns the block, enables recent colours as it says, updates. 1.
    int ApplyProperties(const SPropPalette &block);
    // Bits 1 auto-size, 2 drop-down, 4 recent colours, 8 keep selection,
    // each set when its flag is 1.
    uint32_t GetStyle() const;
    // Assigns value (0 or 1, given as it is) to the flag of every bit in
    // mask, in the order 1, 2, 4, 8; the old bits.
    uint32_t SetStyle(uint32_t mask, int32_t value);

    // ---- counts ---------------------------------------------------------------
    ZoneCounts Counts() const;
    int32_t MainCount() const { return static_cast<int32_t>(block_.mainColors.size()); }
    int32_t MenuCount() const { return static_cast<int32_t>(block_.menus.size()); }
    int32_t InternalCount() const { return static_cast<int32_t>(internal_.size()); }
    int32_t RecentCount() const { return static_cast<int32_t>(recent_.size()); }
    // The last index of a zone; -1 when it is empty or no zone.
    int32_t LastIndex(int32_t zone) const;

    // ---- colours --------------------------------------------------------------
    // Palette 0 the main colours, 1 the recent colours; null for anything
    // else or an index out of range.
    const SPaletteColor *GetColorItem(int32_t palette, int32_t index) const;
    // Stores colour at the smaller of index and count (beyond the end it
    // appends) and gives back what stood there; a negative index gives
    // null and stores nothing. The zones are not laid out again.
    std::unique_ptr<SPaletteColor> SetMainColor(int32_t index, std::unique_ptr<SPaletteColor> colour);
    void ClearMainColors();
    // Newest first, with no search for an equal colour; the oldest beyond
    // the maximum go.
    void AddRecentColor(std::unique_ptr<SPaletteColor> colour);
    void ClearRecentColors();
    int32_t RecentMax() const { return block_.recentMax; }
    // Clamped to 0 to 255; the old maximum.
    int32_t SetRecentMax(int32_t maximum);
    // The other-colour entry exists exactly while recent colours are on;
    // the old flag.
    int32_t EnableRecent(int32_t enable);

    // ---- menus ----------------------------------------------------------------
    // The new index; -1 for no entry.
    int32_t AddMenu(std::unique_ptr<SPaletteMenu> entry);
    // A negative index inserts nothing; beyond the end appends.
    void InsertMenu(int32_t index, std::unique_ptr<SPaletteMenu> entry);
    // Stores at the smaller of index and count and gives back what stood
    // there; a negative index stores nothing.
    std::unique_ptr<SPaletteMenu> SetMenu(int32_t index, std::unique_ptr<SPaletteMenu> entry);
    // 1, or 0 for an index out of range.
    int RemoveMenu(int32_t index);
    void ClearMenus();
    // The application's entries only; null out of range.
    const SPaletteMenu *GetMenu(int32_t index) const;
    // Zone 1's lines: the application's entries, then the internal ones.
    const SPaletteMenu *GetMenuEntry(int32_t index) const;

    // ---- focus ----------------------------------------------------------------
    int32_t FocusZone() const { return focusZone_; }
    int32_t FocusIndex() const { return focusIndex_; }
    // Zone -1 is the present zone. An index outside the zone changes
    // nothing; otherwise, created, both cells are painted again and the
    // notify window told. Always 1.
    int SetFocusCell(int32_t index, int32_t zone, int update);
    // Steps |delta| indices across the zones; 0 shows the focus again.
    void MoveFocus(int32_t delta);
    // The area a focus cell covers with its frame.
    Rect FocusArea(int32_t zone, int32_t index) const;

    // ---- colour roles: 0 to 11 ---------------------------------------------------
    // The colour in force; 0xFFFFFFFF outside 0 to 11.
    uint32_t GetRoleColor(int32_t role) const;
    // The colour in force before (0xFFFFFFFF outside 0 to 11); with redraw 1
    // the role's area is invalidated.
    uint32_t SetRoleColor(int32_t role, uint32_t colour, int redraw);
    int IsDerivedRoleColor(int32_t role) const;
    // The system colour index of each role, 0xFFFF for one that follows role 1.
    static const std::array<uint16_t, kRoleCount> &RoleTable();
    static uint16_t RoleTableEntry(int32_t role);

    // ---- the other colour ------------------------------------------------------
    // What the colour dialog is handed as its initial colour: the first
    // recent entry's reference as a number, not its colour (0 for none).
    uint32_t DialogInitialColor() const;
    // A colour chosen in the dialog: the newest recent colour, focused.
    void OtherColorChosen(uint32_t colour);

    // LayoutChanged: laid out again; created, sized to fit and painted.
    void LayoutChanged(int update);

private:
    void Invalidate(const Rect &area);
    void InvalidateAll();
    void Update();
    const Rect *ZoneArea(int32_t zone) const;

    SPropPalette block_;
    CColorArray recent_;
    CMenuArray internal_;
    RoleColors<kRoleCount> roles_;
    int32_t focusIndex_ = -1;
    int32_t focusZone_ = -1;
    ControlEffects *effects_ = nullptr;
    PaletteView *view_ = nullptr;
    const GridLayout *layout_ = nullptr;
};

} // namespace zk::pal
