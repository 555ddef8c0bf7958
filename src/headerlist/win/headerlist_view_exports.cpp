// Exports of the view itself: the list pointer, colours, places, geometry,
// scrolling and style. What they set reaches the view only, never the block.
#include <windows.h>

#include <commctrl.h>

#include "headerlist/core/headerlist_ids.h"
#include "headerlist/win/headerlist_exports.h"

using zk::GuardedControlText;
using zk::hdr::CHeaderListBox;
using zk::hdr::ListOf;
using zk::hdr::Required;
using zk::hdr::Send;

namespace {

// A colour set on the view, shown at once.
int32_t SetViewColour(CHeaderListBox &list, UINT message, COLORREF colour) {
    const auto answer = static_cast<int32_t>(Send(list, message, 0, static_cast<LPARAM>(colour)));
    InvalidateRect(list.GetSafeHwnd(), nullptr, TRUE);
    return answer;
}

int32_t Ask(CHeaderListBox &list, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return static_cast<int32_t>(Send(list, message, wParam, lParam));
}

} // namespace

extern "C" {

ZelLVControl ZKAPI ZelLVGetListView(ZelLVWrapper wrapper) {
    return GuardedControlText(L"ZelLVGetListView()", L"Unable to retrieve child ListView pointer.", ZelLVControl{0},
                              zk::hdr::WrapperOf(wrapper),
                              [](zk::hdr::CDlgHeaderLB &w) { return reinterpret_cast<ZelLVControl>(w.List()); });
}

int32_t ZKAPI ZelLVGetBkColor(ZelLVControl list) {
    return GuardedControlText(L"ZelLVGetBkColor()", L"Unable to retrieve background color.", -1, ListOf(list),
                              [](CHeaderListBox &l) { return Ask(l, LVM_GETBKCOLOR); });
}

int32_t ZKAPI ZelLVSetBkColor(ZelLVControl list, COLORREF color) {
    return GuardedControlText(L"ZelLVSetBkColor()", L"Unable to assign background color.", 0, ListOf(list),
                              [&](CHeaderListBox &l) { return SetViewColour(l, LVM_SETBKCOLOR, color); });
}

int32_t ZKAPI ZelLVGetTextColor(ZelLVControl list) {
    return GuardedControlText(L"ZelLVGetTextColor()", L"Unable to retrieve text color.", -1, ListOf(list),
                              [](CHeaderListBox &l) { return Ask(l, LVM_GETTEXTCOLOR); });
}

int32_t ZKAPI ZelLVSetTextColor(ZelLVControl list, COLORREF color) {
    return GuardedControlText(L"ZelLVSetTextColor()", L"Unable to assign text color.", 0, ListOf(list),
                              [&](CHeaderListBox &l) { return SetViewColour(l, LVM_SETTEXTCOLOR, color); });
}

int32_t ZKAPI ZelLVGetTextBkColor(ZelLVControl list) {
    return GuardedControlText(L"ZelLVGetTextBkColor()", L"Unable to retrieve text background color.", -1, ListOf(list),
                              [](CHeaderListBox &l) { return Ask(l, LVM_GETTEXTBKCOLOR); });
}

int32_t ZKAPI ZelLVSetTextBkColor(ZelLVControl list, COLORREF color) {
    return GuardedControlText(L"ZelLVSetTextBkColor()", L"Unable to assign text background color.", 0, ListOf(list),
                              [&](CHeaderListBox &l) { return SetViewColour(l, LVM_SETTEXTBKCOLOR, color); });
}

int32_t ZKAPI ZelLVGetItemCount(ZelLVControl list) {
    return GuardedControlText(L"ZelLVGetItemCount()", L"Unable to retrieve item count.", 0, ListOf(list),
                              [](CHeaderListBox &l) { return Ask(l, LVM_GETITEMCOUNT); });
}

int32_t ZKAPI ZelLVGetNextItem(ZelLVControl list, int32_t start, uint16_t flags) {
    return GuardedControlText(
        L"ZelLVGetNextItem()", L"Unable to retrieve next item.", -1, ListOf(list),
        [&](CHeaderListBox &l) { return Ask(l, LVM_GETNEXTITEM, static_cast<WPARAM>(start), MAKELPARAM(flags, 0)); });
}

int32_t ZKAPI ZelLVGetItemRect(ZelLVControl list, int32_t index, RECT *rect, int32_t code) {
    return GuardedControlText(
        L"ZelLVGetItemRect()", L"Unable to retrieve item rectangle.", 0, ListOf(list), [&](CHeaderListBox &l) {
            Required(rect).left = code;
            return Ask(l, LVM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect));
        });
}

int32_t ZKAPI ZelLVSetItemPosition(ZelLVControl list, int32_t index, int32_t x, int32_t y) {
    return GuardedControlText(
        L"ZelLVSetItemPosition()", L"Unable to assign item position.", 0, ListOf(list), [&](CHeaderListBox &l) {
            POINT point{x, y};
            return Ask(l, LVM_SETITEMPOSITION32, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&point));
        });
}

int32_t ZKAPI ZelLVGetItemPosition(ZelLVControl list, int32_t index, POINT *point) {
    return GuardedControlText(
        L"ZelLVGetItemPosition()", L"Unable to retrieve item position.", 0, ListOf(list), [&](CHeaderListBox &l) {
            return Ask(l, LVM_GETITEMPOSITION, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&Required(point)));
        });
}

int32_t ZKAPI ZelLVGetStringWidth(ZelLVControl list, const wchar_t *text) {
    return GuardedControlText(
        L"ZelLVGetStringWidth()", L"Unable to retrieve string width.", 0, ListOf(list),
        [&](CHeaderListBox &l) { return Ask(l, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(text ? text : L"")); });
}

int32_t ZKAPI ZelLVGetViewRect(ZelLVControl list, RECT *rect) {
    return GuardedControlText(
        L"ZelLVGetViewRect()", L"Unable to retrieve view rectangle.", 0, ListOf(list),
        [&](CHeaderListBox &l) { return Ask(l, LVM_GETVIEWRECT, 0, reinterpret_cast<LPARAM>(&Required(rect))); });
}

int32_t ZKAPI ZelLVGetTopIndex(ZelLVControl list) {
    return GuardedControlText(L"ZelLVGetTopIndex()", L"Unable to retrieve top index.", -1, ListOf(list),
                              [](CHeaderListBox &l) { return Ask(l, LVM_GETTOPINDEX); });
}

int32_t ZKAPI ZelLVGetCountPerPage(ZelLVControl list) {
    return GuardedControlText(L"ZelLVGetCountPerPage()", L"Unable to retrieve count per page.", 0, ListOf(list),
                              [](CHeaderListBox &l) { return Ask(l, LVM_GETCOUNTPERPAGE); });
}

int32_t ZKAPI ZelLVGetOrigin(ZelLVControl list, POINT *point) {
    return GuardedControlText(
        L"ZelLVGetOrigin()", L"Unable to retrieve origin.", 0, ListOf(list),
        [&](CHeaderListBox &l) { return Ask(l, LVM_GETORIGIN, 0, reinterpret_cast<LPARAM>(&Required(point))); });
}

int32_t ZKAPI ZelLVFindItem(ZelLVControl list, uint32_t flags, const wchar_t *text, int32_t start) {
    return GuardedControlText(L"ZelLVFindItem()", L"Unable to find item.", -1, ListOf(list), [&](CHeaderListBox &l) {
        LVFINDINFOW find{};
        find.flags = flags;
        find.psz = text ? text : L"";
        return Ask(l, LVM_FINDITEMW, static_cast<WPARAM>(start), reinterpret_cast<LPARAM>(&find));
    });
}

int32_t ZKAPI ZelLVHitTest(ZelLVControl list, int32_t x, int32_t y, uint32_t *flags) {
    return GuardedControlText(L"ZelLVHitTest()", L"Unable to hit test.", -1, ListOf(list), [&](CHeaderListBox &l) {
        uint32_t &out = Required(flags);
        LVHITTESTINFO test{};
        test.pt = POINT{x, y};
        const int32_t row = Ask(l, LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&test));
        out = test.flags;
        return row;
    });
}

int32_t ZKAPI ZelLVEnsureVisible(ZelLVControl list, int32_t index, uint16_t partial) {
    return GuardedControlText(
        L"ZelLVEnsureVisible()", L"Unable to ensure visible.", 0, ListOf(list),
        [&](CHeaderListBox &l) { return Ask(l, LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), partial); });
}

int32_t ZKAPI ZelLVScroll(ZelLVControl list, int32_t dx, int32_t dy) {
    return GuardedControlText(L"ZelLVScroll()", L"Unable to scroll.", 0, ListOf(list),
                              [&](CHeaderListBox &l) { return Ask(l, LVM_SCROLL, static_cast<WPARAM>(dx), dy); });
}

int32_t ZKAPI ZelLVArrange(ZelLVControl list, int32_t code) {
    return GuardedControlText(L"ZelLVArrange()", L"Unable to arrange items.", 0, ListOf(list),
                              [&](CHeaderListBox &l) { return Ask(l, LVM_ARRANGE, static_cast<WPARAM>(code)); });
}

int32_t ZKAPI ZelLVGetStyle(ZelLVControl list) {
    return zk::GuardedControl(L"ZelLVGetStyle()", IDS_HDR_GET_STYLE, 0, ListOf(list), [](CHeaderListBox &l) {
        return static_cast<int32_t>(GetWindowLongW(l.GetSafeHwnd(), GWL_STYLE));
    });
}

int32_t ZKAPI ZelLVSetStyle(ZelLVControl list, int32_t bits, int32_t on) {
    return zk::GuardedControl(L"ZelLVSetStyle()", IDS_HDR_SET_STYLE, 0, ListOf(list), [&](CHeaderListBox &l) {
        const LONG style = GetWindowLongW(l.GetSafeHwnd(), GWL_STYLE);
        return static_cast<int32_t>(
            SetWindowLongW(l.GetSafeHwnd(), GWL_STYLE, on == 1 ? (style | bits) : (style & ~bits)));
    });
}

} // extern "C"
