// The Win32 side of the outline records: where they are found (window
// properties), how they are read and changed (short locks of moveable local
// blocks), and how rows are read past the subclass (the base procedure).
#pragma once

#include <windows.h>

#include <cstdint>

#include "frame/win/localblock.h"
#include "frame/win/propcache.h"
#include "outline/core/lbx.h"
#include "outline/core/lbx_normalize.h"

namespace zk::lbx {

inline constexpr const wchar_t *kLbxParentProp = L"ZK:ParentLbx";
inline constexpr const wchar_t *kLbxChildProp = L"ZK:ChildLbx";
inline constexpr const wchar_t *kLbxRootProp = L"ZK:LbxRootLow";

enum class LbxKind { None, List, Combo };

// The control type: HostWinType 8192 or 16384, else the class name (up to
// 30 characters, without regard to case): "listbox", "QXListBox30",
// "CBCtrlListBox" are lists, "combobox", "QXComboBox30", "CBCtrlComboBox"
// combo boxes.
LbxKind ControlKind(HWND window);

inline HLOCAL ChildHandle(HWND window) { return static_cast<HLOCAL>(zk::PropGet(window, kLbxChildProp)); }
inline HLOCAL LbxParentHandle(HWND window) { return static_cast<HLOCAL>(zk::PropGet(window, kLbxParentProp)); }

// The adoption test: a valid window with "ZK:ChildLbx" whose style has
// LBX_StyleOwnerDraw; the record is copied out under a short lock.
bool LbxGetChildCopy(HWND window, LbxChild *out);

// Changes the child record under a short lock; false without one.
template <class F>
bool ChildEdit(HWND window, F &&f) {
    return zk::LocalWith<LbxChild>(ChildHandle(window), f);
}

// The parent record of a list: on the list's parent, or, when that parent
// is a host frame child, on the first sibling of it that has one. 0 if none.
HLOCAL LbxFindParent(HWND list);

// Sets or clears bits of a parent record; false when it will not lock.
bool ParentFlags(HLOCAL parent, uint16_t set, uint16_t clear);

// The base procedure of an adopted control (its former procedure).
inline WNDPROC LbxBaseProc(const LbxChild &child) { return reinterpret_cast<WNDPROC>(child.childProc); }
inline LRESULT CallBase(const LbxChild &child, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcW(LbxBaseProc(child), window, message, wParam, lParam);
}

// A row's data word read through the base procedure (LbxBaseRow): the
// subclassed LB_GETITEMDATA would answer the item's value. LB_ERR (all bits
// set) past the end.
std::uintptr_t LbxBaseRow(const LbxChild &child, HWND window, bool combo, int32_t row);

// The item of a data word, or null.
inline LbxItem *LbxItemOf(std::uintptr_t word) { return LbxIsItem(word) ? reinterpret_cast<LbxItem *>(word) : nullptr; }

// The outline root in "ZK:LbxRootLow", or null; a value that is no live
// node is treated as none.
LbxNode *LbxRootOf(HWND window);
// The root, made on demand (ZelListGetRoot): null when it cannot be made
// or stored.
LbxNode *LbxGetRoot(HWND window);

// Removes a row without freeing its item: LbxFindParent, keep-items bit,
// HostListDelete, bit cleared. False (nothing changed) without a parent record.
bool RemoveRowKeepItem(HWND list, int32_t row);

// Case rules of the platform: CharUpperBuffW, CharLowerBuffW, IsCharLowerW, lstrcmpiW.
LbxCaseRules &LbxPlatformCase();

// Text of the platform as the core reads it.
inline const char16_t *LbxU16(const wchar_t *text) { return reinterpret_cast<const char16_t *>(text); }
inline const wchar_t *LbxW(const char16_t *text) { return reinterpret_cast<const wchar_t *>(text); }

// Repaints a row: its rectangle from LB_GETITEMRECT on a list box, the whole
// window on a combo box or when the rectangle cannot be had.
void RedrawRow(HWND window, bool combo, int32_t row, UINT flags);

// A row's height asked of the parent: WM_MEASUREITEM with control type 2
// (list) or 3 (combo), the row and its data. False when the parent answered
// 0; else the answer's height in *height.
bool MeasureRow(HWND window, bool combo, int32_t row, std::uintptr_t data, UINT *height);

} // namespace zk::lbx
