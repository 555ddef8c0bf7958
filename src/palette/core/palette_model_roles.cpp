// The twelve colour roles: an explicit colour once set, else the system
// colour of the role's table entry; roles 0, 2 and 6 follow role 1.
#include "palette/core/palette_model.h"

namespace zk::pal {

namespace {

// System colour indices of the platform.
constexpr uint16_t kWindow = 5, kWindowFrame = 6, kWindowText = 8, kHighlight = 13, kHighlightText = 14,
                   kBtnShadow = 16, kGrayText = 17, kBtnHighlight = 20;

constexpr std::array<uint16_t, kRoleCount> kRoleTable = {
    kFollows, kWindow,   kFollows,    kBtnHighlight,  kBtnShadow, kWindowFrame,
    kFollows, kGrayText, kWindowText, kHighlightText, kHighlight, kWindowFrame,
};

// RoleColors asks for a system colour only for a role with a system entry,
// which GetRoleColor answers itself through the view.
uint32_t NoSystemColour(int32_t) { return 0; }

} // namespace

const std::array<uint16_t, kRoleCount> &PaletteModel::RoleTable() { return kRoleTable; }

uint16_t PaletteModel::RoleTableEntry(int32_t role) {
    return RoleColors<kRoleCount>::Valid(role) ? kRoleTable[static_cast<size_t>(role)] : kFollows;
}

uint32_t PaletteModel::GetRoleColor(int32_t role) const {
    if (!roles_.Valid(role))
        return 0xFFFFFFFFu;
    auto sysColor = [this](int32_t index) { return view_ ? view_->SysColor(index) : 0u; };
    const uint16_t entry = kRoleTable[static_cast<size_t>(role)];
    if (roles_.UsesDefault(role) && entry != kFollows)
        return sysColor(entry);
    // Roles 0, 2 and 6 answer as role 1 would, an explicit colour on it included.
    return roles_.Get(role, &NoSystemColour, [&](int32_t r) {
        return r == PALR_GridBack || r == PALR_MenuBack || r == PALR_InnerBottomRight ? GetRoleColor(PALR_Background)
                                                                                      : sysColor(kWindow);
    });
}

uint32_t PaletteModel::SetRoleColor(int32_t role, uint32_t colour, int redraw) {
    if (!roles_.Valid(role))
        return 0xFFFFFFFFu;
    const uint32_t old = GetRoleColor(role);
    roles_.Set(role, colour);
    if (redraw != 1)
        return old;
    switch (role) {
    case PALR_GridBack:
        if (layout_) {
            Invalidate(layout_->Main());
            Invalidate(layout_->Recent());
        }
        break;
    case PALR_Background:
    case PALR_DisabledText:
    case PALR_Text:
    case PALR_Frame:
        InvalidateAll();
        break;
    case PALR_MenuBack:
        if (layout_)
            Invalidate(layout_->Menu());
        break;
    default: // the bevels and the focus frame
        if (layout_)
            Invalidate(layout_->Frame());
        break;
    }
    return old;
}

int PaletteModel::IsDerivedRoleColor(int32_t role) const { return roles_.Valid(role) ? roles_.IsDerived(role) : 0; }

} // namespace zk::pal
