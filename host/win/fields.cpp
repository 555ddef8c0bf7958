// Data fields of the host on real controls: emptying, the null test, the
// edited flag, validation.
#include "wintype.h"
#include "zkhost.h"

using namespace hostwin;

namespace {

// Where the edited flag of a field that is no edit control is kept.
constexpr wchar_t kEditedProperty[] = L"ZkHost:Edited";

bool IsDropDownList(HWND combo) { return (GetWindowLongPtrW(combo, GWL_STYLE) & 0x3) == CBS_DROPDOWNLIST; }

bool IsMultipleSelection(HWND list) {
    return (GetWindowLongPtrW(list, GWL_STYLE) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
}

} // namespace

extern "C" {

int32_t ZKAPI HostFieldClear(HWND window) {
    switch (KindOf(window)) {
    case WinKind::None:
        return 0;
    case WinKind::ListBox:
        SendMessageW(window, LB_RESETCONTENT, 0, 0);
        return 1;
    case WinKind::ComboBox:
        if (IsDropDownList(window))
            SendMessageW(window, CB_RESETCONTENT, 0, 0);
        else
            SetWindowTextW(window, L"");
        return 1;
    default:
        SetWindowTextW(window, L"");
        return 1;
    }
}

int32_t ZKAPI HostPictureClear(HWND window) {
    WinKind kind = KindOf(window);
    if (kind == WinKind::None)
        return 0;
    if (kind == WinKind::Static) {
        switch (GetWindowLongPtrW(window, GWL_STYLE) & SS_TYPEMASK) {
        case SS_BITMAP:
            SendMessageW(window, STM_SETIMAGE, IMAGE_BITMAP, 0);
            return 1;
        case SS_ICON:
            SendMessageW(window, STM_SETIMAGE, IMAGE_ICON, 0);
            return 1;
        case SS_ENHMETAFILE:
            SendMessageW(window, STM_SETIMAGE, IMAGE_ENHMETAFILE, 0);
            return 1;
        default:
            break;
        }
    }
    SetWindowTextW(window, L"");
    return 1;
}

// A list is null without a selection, a drop-down list too; other fields
// when their text is empty.
int32_t ZKAPI HostFieldIsNull(HWND window) {
    switch (KindOf(window)) {
    case WinKind::None:
        return 1;
    case WinKind::ListBox:
        if (IsMultipleSelection(window))
            return SendMessageW(window, LB_GETSELCOUNT, 0, 0) <= 0 ? 1 : 0;
        return SendMessageW(window, LB_GETCURSEL, 0, 0) == LB_ERR ? 1 : 0;
    case WinKind::ComboBox:
        if (IsDropDownList(window))
            return SendMessageW(window, CB_GETCURSEL, 0, 0) == CB_ERR ? 1 : 0;
        return GetWindowTextLengthW(window) == 0 ? 1 : 0;
    default:
        return GetWindowTextLengthW(window) == 0 ? 1 : 0;
    }
}

int32_t ZKAPI HostFieldSetEditFlag(HWND window, int32_t flag) {
    WinKind kind = KindOf(window);
    if (kind == WinKind::None)
        return 0;
    if (kind == WinKind::Edit) {
        SendMessageW(window, EM_SETMODIFY, flag ? TRUE : FALSE, 0);
        return 1;
    }
    if (flag)
        return SetPropW(window, kEditedProperty, reinterpret_cast<HANDLE>(1)) ? 1 : 0;
    RemovePropW(window, kEditedProperty);
    return 1;
}

// The reference host has no validation rules: a field may always lose the
// focus.
int32_t ZKAPI HostFieldValidate(HWND window, int32_t flag, int32_t reserved) { return 1; }

} // extern "C"
