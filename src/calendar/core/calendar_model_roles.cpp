// Colour roles: an explicit colour, or the system colour of the role's
// table entry, or, for a derived role, the colour of the role it follows.
#include "calendar/core/calendar_model.h"
#include "calendar/core/date_ops.h"
#include "calendar/core/errors.h"

namespace zk::cal {

namespace {

// System colour indices of the platform.
constexpr uint16_t kWindow = 5, kWindowFrame = 6, kWindowText = 8, kHighlight = 13, kHighlightText = 14,
                   kBtnFace = 15, kBtnShadow = 16, kGrayText = 17, kBtnText = 18, kBtnHighlight = 20;
constexpr uint16_t kDerived = 0xFFFF;

constexpr uint16_t kRoleTable[kRoleCount] = {
    kDerived,   kWindow,     kDerived,    kBtnFace,  kHighlight, kBtnFace,  kBtnHighlight,  kBtnShadow,
    kBtnText,   kWindowText, kDerived,    kGrayText, kGrayText,  kDerived,  kHighlightText, kWindowFrame,
};

CalArea RedrawArea(int32_t role) {
    switch (role) {
    case CALR_CellBack:
    case CALR_ExtraBack:
    case CALR_MarkBack:
    case CALR_CellText:
    case CALR_ExtraText:
    case CALR_MarkText:
        return CalArea::Grid;
    case CALR_HeaderBack:
        return CalArea::CaptionAndHeader;
    case CALR_ButtonFace:
    case CALR_ButtonLight:
    case CALR_ButtonShadow:
    case CALR_ButtonArrow:
        return CalArea::Buttons;
    case CALR_WeekdayText:
        return CalArea::WeekdayHeader;
    case CALR_CaptionText:
        return CalArea::Caption;
    default: // background, disabled text, frame
        return CalArea::Window;
    }
}

} // namespace

uint16_t CCalendar::RoleTableEntry(int32_t role) {
    return role >= 0 && role < kRoleCount ? kRoleTable[role] : kDerived;
}

void CCalendar::CheckRole(int32_t role) const {
    if (role < 0 || role >= kRoleCount)
        throw InvalidArgError();
}

uint32_t CCalendar::GetRoleColor(int32_t role) const {
    CheckRole(role);
    if (useDefaultColor_[role] != 1)
        return roleColors_[role];
    if (kRoleTable[role] != kDerived)
        return Platform().sysColor(kRoleTable[role]);
    switch (role) {
    case CALR_ExtraBack:
    case CALR_HeaderBack:
    case CALR_MarkBack:
        return GetRoleColor(CALR_CellBack);
    case CALR_WeekdayText:
    case CALR_ExtraText:
    case CALR_CaptionText:
    case CALR_MarkText:
        return GetRoleColor(CALR_CellText);
    case CALR_CellText:
        return Platform().sysColor(kWindowText);
    default: // the background, and the cells' own background
        return Platform().sysColor(kWindow);
    }
}

uint32_t CCalendar::SetRoleColor(int32_t role, uint32_t color, int redraw) {
    // The colour in force before, so that saving and restoring it gives a
    // role that followed the system its system colour back.
    const uint32_t old = GetRoleColor(role);
    roleColors_[role] = color;
    useDefaultColor_[role] = 0;
    if (redraw == 1)
        Invalidate(RedrawArea(role));
    return old;
}

int CCalendar::IsDerivedRoleColor(int32_t role) const {
    CheckRole(role);
    if (useDefaultColor_[role] == 0)
        return 0;
    return kRoleTable[role] == kDerived ? 1 : 0;
}

} // namespace zk::cal
