// Colour roles: an explicit colour, or the system colour of the role's
// table entry, or, for a derived role, the colour of the role it follows.
#include <array>

#include "calendar/core/calendar_model.h"
#include "calendar/core/date_ops.h"
#include "frame/core/errors.h"

namespace zk::cal {

namespace {

// System colour indices of the platform.
constexpr uint16_t kWindow = 5, kWindowFrame = 6, kWindowText = 8, kHighlight = 13, kHighlightText = 14, kBtnFace = 15,
                   kBtnShadow = 16, kGrayText = 17, kBtnText = 18, kBtnHighlight = 20;

constexpr std::array<uint16_t, kRoleCount> kRoleTable = {
    kFollows, kWindow,     kFollows, kBtnFace,  kHighlight, kBtnFace, kBtnHighlight,  kBtnShadow,
    kBtnText, kWindowText, kFollows, kGrayText, kGrayText,  kFollows, kHighlightText, kWindowFrame,
};

Area RedrawArea(int32_t role) {
    switch (role) {
    case CALR_CellBack:
    case CALR_ExtraBack:
    case CALR_MarkBack:
    case CALR_CellText:
    case CALR_ExtraText:
    case CALR_MarkText:
        return Area::Grid;
    case CALR_HeaderBack:
        return Area::CaptionAndHeader;
    case CALR_ButtonFace:
    case CALR_ButtonLight:
    case CALR_ButtonShadow:
    case CALR_ButtonArrow:
        return Area::Buttons;
    case CALR_WeekdayText:
        return Area::WeekdayHeader;
    case CALR_CaptionText:
        return Area::Caption;
    default: // background, disabled text, frame
        return Area::Window;
    }
}

uint32_t SysColor(int32_t index) { return Platform().sysColor(index); }

} // namespace

const std::array<uint16_t, kRoleCount> &CalendarModel::RoleTable() { return kRoleTable; }

uint16_t CalendarModel::RoleTableEntry(int32_t role) {
    return RoleColors<kRoleCount>::Valid(role) ? kRoleTable[static_cast<size_t>(role)] : kFollows;
}

void CalendarModel::CheckRole(int32_t role) const {
    if (!roles_.Valid(role))
        throw InvalidArgException();
}

uint32_t CalendarModel::GetRoleColor(int32_t role) const {
    CheckRole(role);
    // The backgrounds follow the cells' background, the texts the cells'
    // text; the cells follow the system's window colours.
    return roles_.Get(role, &SysColor, [this](int32_t r) -> uint32_t {
        switch (r) {
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
            return SysColor(kWindowText);
        default: // the background, and the cells' own background
            return SysColor(kWindow);
        }
    });
}

uint32_t CalendarModel::SetRoleColor(int32_t role, uint32_t color, int redraw) {
    // The colour in force before, so that saving and restoring it gives a
    // role that followed the system its system colour back.
    const uint32_t old = GetRoleColor(role);
    roles_.Set(role, color);
    if (redraw == 1)
        Invalidate(RedrawArea(role));
    return old;
}

int CalendarModel::IsDerivedRoleColor(int32_t role) const {
    CheckRole(role);
    return roles_.IsDerived(role);
}

} // namespace zk::cal
