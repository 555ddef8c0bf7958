#include "frame/win/generic_control.h"

namespace zk {

namespace {

// The base table, filled once per process (InitClassStatics).
std::array<uint16_t, CGenericControl::kRoleCount> roleTable{};
bool staticsDone = false;

uint32_t SysColor(int32_t index) { return GetSysColor(index); }

} // namespace

CGenericControl::CGenericControl() {
    CGenericControl::InitClassStatics();
    roles = RoleColors<kRoleCount>(roleTable);
}

CGenericControl::~CGenericControl() {
    if (font)
        DeleteObject(font);
}

void CGenericControl::InitClassStatics() {
    if (staticsDone)
        return;
    roleTable = {COLOR_WINDOW, COLOR_WINDOWTEXT, COLOR_GRAYTEXT, COLOR_WINDOWFRAME};
    staticsDone = true;
}

int CGenericControl::IsDerivedRoleColor(int role) { return roles.Valid(role) ? roles.IsDerived(role) : 0; }

COLORREF CGenericControl::GetRoleColor(int role) {
    if (!roles.Valid(role))
        return CLR_INVALID;
    // Every entry of the base table is a system colour; a derived class's
    // table may have following roles, which follow the text for role 1 and
    // the window for the others.
    return roles.Get(role, &SysColor, [](int32_t r) { return GetSysColor(r == 1 ? COLOR_WINDOWTEXT : COLOR_WINDOW); });
}

COLORREF CGenericControl::SetRoleColor(int role, COLORREF colour, int redraw) {
    if (!roles.Valid(role))
        return CLR_INVALID;
    const COLORREF old = GetRoleColor(role); // in force, not the stored explicit colour
    roles.Set(role, colour);
    if (redraw == 1)
        InvalidateAll(true);
    return old;
}

void CGenericControl::RecalcMetrics() {
    ClientDC dc(GetSafeHwnd());
    if (!dc)
        return;
    TEXTMETRICW metrics{};
    BOOL measured = FALSE;
    {
        Selected selected(dc, font);
        measured = GetTextMetricsW(dc, &metrics);
    }
    if (!measured)
        return;
    columnWidth = metrics.tmAveCharWidth + (6 * metrics.tmAveCharWidth) / 10;
    rowHeight = metrics.tmHeight + metrics.tmHeight / 3;
}

int CGenericControl::FrameHeight() const { return created == 1 ? frame.bottom - frame.top : -1; }

int CGenericControl::FrameWidth() const { return created == 1 ? frame.right - frame.left : -1; }

void CGenericControl::ApplyGenericBlock(const SPropGeneric &block) {
    autoSize = block.style1;
    thirdFlag = block.style2;
    popUp = block.style3;
    fourthFlag = block.style4;
    fifthFlag = block.style5;
    sixthFlag = block.style6;
}

} // namespace zk
