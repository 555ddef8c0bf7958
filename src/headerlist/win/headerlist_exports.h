// What the header list's exports share: the pointers the host holds as the
// objects they stand for, the view's messages, and host strings filled from
// texts. Each export runs under zk::GuardedControlText with its own words.
#pragma once

#include <string_view>

#include "frame/core/errors.h"
#include "frame/win/guard.h"
#include "headerlist/win/headerlist_wrapper.h"

namespace zk::hdr {

// The one place that reads the host's pointers. Null stays null, for the guard's message.
inline CDlgHeaderLB *WrapperOf(ZelLVWrapper wrapper) { return reinterpret_cast<CDlgHeaderLB *>(wrapper); }
inline CHeaderListBox *ListOf(ZelLVControl list) { return reinterpret_cast<CHeaderListBox *>(list); }

inline LRESULT Send(const CHeaderListBox &list, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(list.GetSafeHwnd(), message, wParam, lParam);
}

// A required out pointer: a null one is the caller's mistake.
template <class T>
T &Required(T *pointer) {
    if (!pointer)
        throw UserException();
    return *pointer;
}

// A text argument as the store takes it; no text is the empty text.
inline const char16_t *TextArg(const wchar_t *text) { return reinterpret_cast<const char16_t *>(text ? text : L""); }

// Fills *slot with a host string of the text (2 * length + 2 bytes): the
// host's answer to the allocation. No buffer raises a memory exception.
int32_t FillHostString(HostStr *slot, std::wstring_view text);

} // namespace zk::hdr
