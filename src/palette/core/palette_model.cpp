// The block as the live model, the main and recent colours, the recent
// rules and the style bits.
#include "palette/core/palette_model.h"
#include "palette/core/palette_ids.h"

#include <algorithm>

#include "frame/core/block_io.h"

namespace zk::pal {

PaletteModel::PaletteModel() : roles_(RoleTable()) {}

ZoneCounts PaletteModel::Counts() const { return {MainCount(), MenuCount() + InternalCount(), RecentCount()}; }

int32_t PaletteModel::LastIndex(int32_t zone) const {
    switch (zone) {
    case kZoneMain:
        return MainCount() - 1;
    case kZoneMenu:
        return MenuCount() + InternalCount() - 1;
    case kZoneRecent:
        return RecentCount() - 1;
    default:
        return -1;
    }
}

// ---- effects on the window, when there is one ---------------------------------------

void PaletteModel::Invalidate(const Rect &area) {
    if (effects_)
        effects_->Invalidate(area, false);
}

void PaletteModel::InvalidateAll() {
    if (effects_)
        effects_->InvalidateAll(false);
}

void PaletteModel::Update() {
    if (effects_)
        effects_->Update();
}

void PaletteModel::LayoutChanged(int update) {
    if (view_)
        view_->RecalcLayout();
    if (!Created())
        return;
    view_->FitWindow();
    InvalidateAll();
    if (update == 1)
        Update();
}

// ---- block and style ------------------------------------------------------------

void PaletteModel::SerializeBlock(CArchive &ar) { SerializeHeldBlock(ar, block_); }

int PaletteModel::ApplyProperties(const SPropPalette &block) {
    block_ = block;
    EnableRecent(block_.enableRecent);
    Update();
    return 1;
}

uint32_t PaletteModel::GetStyle() const {
    uint32_t bits = 0;
    if (block_.autoSize == 1)
        bits |= PALS_AutoSize;
    if (block_.dropDown == 1)
        bits |= PALS_DropDown;
    if (block_.enableRecent == 1)
        bits |= PALS_EnableRecent;
    if (block_.keepSelection == 1)
        bits |= PALS_KeepSelection;
    return bits;
}

// Auto-size and drop-down act from the next layout on.
uint32_t PaletteModel::SetStyle(uint32_t mask, int32_t value) {
    const uint32_t old = GetStyle();
    if (mask & PALS_AutoSize)
        block_.autoSize = value;
    if (mask & PALS_DropDown)
        block_.dropDown = value;
    if (mask & PALS_EnableRecent)
        EnableRecent(value);
    if (mask & PALS_KeepSelection) {
        block_.keepSelection = value;
        InvalidateAll();
    }
    Update();
    return old;
}

// ---- colours --------------------------------------------------------------------

const SPaletteColor *PaletteModel::GetColorItem(int32_t palette, int32_t index) const {
    if (index < 0)
        return nullptr;
    if (palette == PALP_Main)
        return block_.mainColors.at(static_cast<size_t>(index));
    if (palette == PALP_Recent)
        return recent_.at(static_cast<size_t>(index));
    return nullptr;
}

std::unique_ptr<SPaletteColor> PaletteModel::SetMainColor(int32_t index, std::unique_ptr<SPaletteColor> colour) {
    if (index < 0)
        return nullptr;
    const int32_t at = std::min(index, MainCount());
    std::unique_ptr<SPaletteColor> old = block_.mainColors.StoreAt(static_cast<size_t>(at), std::move(colour));
    if (Created() && layout_) {
        Invalidate(layout_->GetColorCellRect(kZoneMain, at, MainCount()));
        Update();
    }
    return old;
}

void PaletteModel::ClearMainColors() {
    auto &items = block_.mainColors.items;
    while (!items.empty())
        items.pop_back();
    LayoutChanged(0);
}

void PaletteModel::AddRecentColor(std::unique_ptr<SPaletteColor> colour) {
    auto &items = recent_.items;
    items.insert(items.begin(), std::move(colour));
    const size_t maximum = static_cast<size_t>(std::max(block_.recentMax, 0));
    while (items.size() > maximum)
        items.pop_back();
    LayoutChanged(1);
}

void PaletteModel::ClearRecentColors() {
    recent_.RemoveAll();
    if (focusZone_ == kZoneRecent)
        SetFocusCell(0, kZoneMain, 1);
    LayoutChanged(1);
}

int32_t PaletteModel::SetRecentMax(int32_t maximum) {
    const int32_t old = block_.recentMax;
    block_.recentMax = std::clamp(maximum, 0, kRecentMaxLimit);
    auto &items = recent_.items;
    while (items.size() > static_cast<size_t>(block_.recentMax))
        items.pop_back();
    // In a list emptied by maximum 0 the last index is -1, which leaves the
    // focus where it was.
    if (focusZone_ == kZoneRecent && focusIndex_ > LastIndex(kZoneRecent))
        SetFocusCell(LastIndex(kZoneRecent), kZoneRecent, 0);
    LayoutChanged(1);
    return old;
}

int32_t PaletteModel::EnableRecent(int32_t enable) {
    const int32_t old = block_.enableRecent;
    block_.enableRecent = enable;
    if (enable == 1) {
        if (internal_.size() == 0) {
            const std::u16string text = view_ ? view_->LoadText(IDS_PAL_OTHER_COLOR) : std::u16string();
            internal_.items.insert(internal_.items.begin(), std::make_unique<SPaletteMenu>(text, 0));
        }
    } else {
        if (internal_.size() != 0)
            internal_.items.erase(internal_.items.begin());
        ClearRecentColors();
    }
    LayoutChanged(0);
    return old;
}

uint32_t PaletteModel::DialogInitialColor() const {
    // The reference itself, as the dialog has always been given it; the
    // dialog opens without its initial-colour flag, so it is not shown.
    return static_cast<uint32_t>(reinterpret_cast<uintptr_t>(recent_.at(0)));
}

void PaletteModel::OtherColorChosen(uint32_t colour) {
    AddRecentColor(std::make_unique<SPaletteColor>(colour));
    SetFocusCell(0, kZoneRecent, 0);
}

} // namespace zk::pal
