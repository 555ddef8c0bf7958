// What the outline's Windows tests read and send the same way: the list
// styles adoption expects, the records the library keeps in the window
// properties, a row's data past the subclass, a font's metrics, and the
// nodes of a tree in order.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "outline/core/lbx.h"
#include "outline/core/ofile_collect.h"

using namespace zk::lbx;

namespace outlinetest {

// Owner-draw rows without strings, as adoption makes them.
constexpr DWORD kListStyle = LBS_NOTIFY | WS_VSCROLL | WS_BORDER | LBS_OWNERDRAWVARIABLE;

inline LRESULT Send(HWND w, UINT m, WPARAM wp = 0, LPARAM lp = 0) { return SendMessageW(w, m, wp, lp); }

inline WNDPROC BaseProc(HWND list) { return reinterpret_cast<WNDPROC>(GetClassLongPtrW(list, GCLP_WNDPROC)); }

// The data word a row holds in the list itself, past the subclass.
inline std::uintptr_t RawData(HWND list, int row, bool combo = false) {
    return static_cast<std::uintptr_t>(
        CallWindowProcW(BaseProc(list), list, combo ? CB_GETITEMDATA : LB_GETITEMDATA, static_cast<WPARAM>(row), 0));
}

// The record of type T under the property `name`, changed by `f` in place.
template <class T, class F>
void EditRecord(HWND window, const wchar_t *name, F &&f) {
    HLOCAL handle = static_cast<HLOCAL>(GetPropW(window, name));
    if (void *p = handle ? LocalLock(handle) : nullptr) {
        f(*static_cast<T *>(p));
        LocalUnlock(handle);
    }
}
template <class F>
void EditChildRecord(HWND window, F &&f) {
    EditRecord<LbxChild>(window, L"ZK:ChildLbx", f);
}
template <class F>
void EditParentRecord(HWND window, F &&f) {
    EditRecord<LbxParent>(window, L"ZK:ParentLbx", f);
}
// Copies of the records; zero when the window has none.
inline LbxChild ChildRecord(HWND window) {
    LbxChild copy{};
    EditChildRecord(window, [&](LbxChild &c) { copy = c; });
    return copy;
}
inline LbxParent ParentRecord(HWND window) {
    LbxParent copy{};
    EditParentRecord(window, [&](LbxParent &p) { copy = p; });
    return copy;
}

// Tahoma of 11 pixels without smoothing: painted text has exact colours.
inline HFONT PaintFont() {
    return CreateFontW(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, NONANTIALIASED_QUALITY, 0, L"Tahoma");
}

// The metrics and a text's width in `font` on the window's device context.
inline TEXTMETRICW FontMetrics(HWND window, HGDIOBJ font) {
    HDC dc = GetDC(window);
    HGDIOBJ old = SelectObject(dc, font);
    TEXTMETRICW tm{};
    GetTextMetricsW(dc, &tm);
    SelectObject(dc, old);
    ReleaseDC(window, dc);
    return tm;
}
inline int TextWidth(HWND window, HGDIOBJ font, const wchar_t *text) {
    HDC dc = GetDC(window);
    HGDIOBJ old = SelectObject(dc, font);
    SIZE size{};
    GetTextExtentPoint32W(dc, text, lstrlenW(text), &size);
    SelectObject(dc, old);
    ReleaseDC(window, dc);
    return size.cx;
}

// The nodes below `root` in pre-order: the stream's walk without the root.
inline std::vector<LbxNode *> Walk(const LbxNode *root) {
    std::vector<LbxNode *> order;
    zk::lbx::ofile::OutlineWalk(const_cast<LbxNode *>(root), [&](LbxNode *n) {
        if (n != root)
            order.push_back(n);
    });
    return order;
}

} // namespace outlinetest
