// The form-wide walks over fields: which required field is null, emptying
// every field by its host type, clearing the edited flags.
#include "menu/win/window_flags.h"
#include "menu/win/window_walk.h"

namespace zk::menu {

namespace {

bool IsContainer(HWND window) {
    const uint32_t cls = HostWinClass(window);
    return cls == HOST_WC_FRAMECHILD || cls == HOST_WC_CONTAINER;
}

} // namespace

bool IsNullField(HWND child, uint32_t type, bool strictMultiple) {
    const LONG style = GetWindowLongW(child, GWL_STYLE);
    switch (type) {
    case HOST_WT_LISTBOX:
        if (style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) {
            if (SendMessageW(child, LB_GETSELCOUNT, 0, 0) == 0)
                return true;
            return strictMultiple && HostListGetSelection(child) == -1;
        }
        return HostListGetSelection(child) == -1;
    case HOST_WT_COMBOBOX:
        // A drop-down list has no text but its selection.
        if ((style & 3) == CBS_DROPDOWNLIST)
            return HostListGetSelection(child) == -1;
        return HostListGetSelection(child) == -1 && HostFieldIsNull(child);
    case HOST_WT_DATAFIELD:
    case HOST_WT_MULTILINE:
        return HostFieldIsNull(child) != 0;
    default:
        return false;
    }
}

HWND FirstRequiredNull(HWND form) {
    HWND found = nullptr;
    FindChild(form, 0x7FFFFFFF, [&](HWND child) {
        if (IsContainer(child) && (found = FirstRequiredNull(child)))
            return true;
        if ((FlagsOf(child) & WF_Required) && IsNullField(child, HostWinType(child), false))
            found = child;
        return found != nullptr;
    });
    return found;
}

int32_t ClearAllFields(HWND form) {
    int32_t count = 0;
    ForEachChild(form, [&](HWND child) {
        if (FlagsOf(child) & WF_NoClear)
            return;
        switch (HostWinType(child)) {
        case HOST_WT_DATAFIELD:
        case HOST_WT_MULTILINE:
            HostFieldClear(child);
            break;
        case HOST_WT_COMBOBOX:
            HostFieldClear(child);
            HostListClear(child);
            break;
        case HOST_WT_LISTBOX:
            HostListClear(child);
            break;
        case HOST_WT_PICTURE:
            HostPictureClear(child);
            break;
        case HOST_WT_CHECKBOX:
        case HOST_WT_RADIOBUTTON:
            SendMessageW(child, BM_SETCHECK, BST_UNCHECKED, 0);
            break;
        default:
            return;
        }
        ++count;
    });
    return count;
}

int32_t ClearAllEditFlags(HWND form) {
    // The flag is read on the form, not on each field: a form with it
    // clears none, whatever its fields say.
    if (FlagsOf(form) & WF_NoClearEdit)
        return 0;
    int32_t count = 0;
    ForEachChild(form, [&](HWND child) {
        if (IsDataField(HostWinType(child))) {
            HostFieldSetEditFlag(child, 0);
            ++count;
        }
    });
    return count;
}

} // namespace zk::menu
