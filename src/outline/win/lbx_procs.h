// The three window procedures of adopted lists and the pieces they share.
#pragma once

#include <windows.h>

#include "outline/win/lbx_win.h"

namespace zk::lbx {

// On the parent of adopted lists: the owner-draw messages, commands and edit colours.
LRESULT CALLBACK LbxParentWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
// On an adopted list box and an adopted combo box.
LRESULT CALLBACK LbxListBoxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK LbxComboBoxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// The modern twin of a request that arrived under its old number, or the message itself.
UINT ListTwin(UINT message);
UINT ComboTwin(UINT message);

// The entry of the two control procedures: the record copied once for the
// message (a control without one answers as a plain window), then the
// dispatch of the message's modern twin; nothing thrown leaves, it becomes
// the trace of string 52 under `name` and the answer 0.
using LbxDispatch = LRESULT (*)(const LbxChild &child, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT ControlEntry(const wchar_t *name, LbxDispatch dispatch, UINT (*twin)(UINT), HWND window, UINT message,
                     WPARAM wParam, LPARAM lParam);

// ---- handlers shared by the two control procedures ------------------------------
// Each takes the record copied at entry; `combo` tells which messages of the
// base to use.

// ZKM_LbxAddRow, ZKM_LbxInsertRow: a row for an existing item, straight to
// the base procedure. A control created with strings keeps them whatever its
// window style says now, and copies the text at the item's address; its row
// then gets the item in its data word as well.
LRESULT BaseAddRow(const LbxChild &child, HWND window, bool combo, UINT message, WPARAM row, LPARAM item);

// ZKM_LbxUserRecord: copies the caller's word and text into the record or back. 1.
LRESULT UserRecord(HWND window, WPARAM set, LPARAM buffer);

// LB_GETTEXT, CB_GETLBTEXT, ZKM_LbxGetText: the row's text through its item.
LRESULT TextQuery(const LbxChild &child, HWND window, bool combo, UINT message, WPARAM row, LPARAM buffer);
// LB_GETTEXTLEN, CB_GETLBTEXTLEN.
LRESULT LbxTextLength(const LbxChild &child, HWND window, bool combo, UINT message, WPARAM row, LPARAM lParam);
// LB_GETITEMDATA, CB_GETITEMDATA and their setting twins: the item's value.
LRESULT ItemData(const LbxChild &child, HWND window, bool combo, UINT message, WPARAM row, LPARAM lParam);
// LB_GETCURSEL, CB_GETCURSEL: -1 for a disabled row.
LRESULT LbxCurSel(const LbxChild &child, HWND window, bool combo, UINT message);
// LB_SELECTSTRING, CB_SELECTSTRING.
LRESULT SelectString(const LbxChild &child, HWND window, bool combo, WPARAM start, LPARAM text);
// LB_GETSELCOUNT, LB_GETSELITEMS: selected rows that are not disabled.
LRESULT LbxSelection(const LbxChild &child, HWND window, UINT message, WPARAM capacity, LPARAM out);
// LB_SETTABSTOPS: the stops kept in pixels for painting, and forwarded.
LRESULT SetTabStops(HWND window, const LbxChild &child, WPARAM count, LPARAM units);
// WM_KEYDOWN: type-ahead, and paging in a list box.
LRESULT LbxKeyDown(const LbxChild &child, HWND window, bool combo, WPARAM key, LPARAM lParam);
// WM_LBUTTONDOWN and WM_LBUTTONDBLCLK under LBX_StyleOutline: the box.
// `scrollCorrection`: add the horizontal scroll offset to x (list boxes).
LRESULT BoxClick(const LbxChild &child, HWND window, bool combo, UINT message, WPARAM wParam, LPARAM lParam,
                 bool scrollCorrection);
// WM_LBUTTONUP and WM_KEYUP of a list box.
LRESULT ButtonUp(const LbxChild &child, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
// WM_SETFONT: forwards, then re-measures every row.
LRESULT LbxSetFont(const LbxChild &child, HWND window, bool combo, WPARAM font, LPARAM redraw);
// Edit colours of a combo box whose current row is an item: text colour the
// item's, background bkColor; the brush, or 0 to forward.
HBRUSH ComboEditColor(HWND combo, HDC dc);
// Refreshes the edit of a combo box from a row (LbxSyncComboEdit).
int LbxSyncComboEdit(HWND combo, int32_t row, HWND edit, WNDPROC base);
// Frees what an adopted control owns, puts its procedure back and removes
// its record (the common part of WM_DESTROY).
void ReleaseControl(HWND window, const LbxChild &child, bool combo);

// Multiple or extended selection (a combo box never).
inline bool LbxIsMultiSelect(HWND window, bool combo) {
    return !combo && (GetWindowLongW(window, GWL_STYLE) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
}

} // namespace zk::lbx
