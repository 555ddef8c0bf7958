// The form's subclass: on a change in a list, a combo box or an edit, the
// form decides whether any required field is null and enables or disables
// every window with WF_RequiredButton to match, in its frames and in the
// forms and tool bars that share its fields.
#include "frame/win/localblock.h"
#include "frame/win/propcache.h"
#include "frame/win/record_subclass.h"
#include "menu/win/window_flags.h"
#include "menu/win/window_walk.h"

namespace zk::menu {

namespace {

// LBN_SELCHANGE and CBN_SELCHANGE, CBN_EDITCHANGE, EN_CHANGE.
constexpr WORD kSelectionChange = 1, kComboEditChange = 5, kEditChange = 0x300;

bool AnyRequiredNull(HWND form) {
    return FindChild(form, 0x7FFFFFFF, [](HWND child) {
               const uint32_t type = HostWinType(child);
               if (type == HOST_WT_FRAME && FirstRequiredNull(child))
                   return true;
               return (FlagsOf(child) & WF_Required) && IsNullField(child, type, true);
           }) != nullptr;
}

void ApplyTo(HWND form, bool requiredNull) {
    ForEachChild(form, [&](HWND child) {
        if (FlagsOf(child) & WF_RequiredButton) {
            if (requiredNull)
                HostWinDisable(child);
            else
                HostWinEnable(child);
        }
        const uint32_t cls = HostWinClass(child);
        if (cls == HOST_WC_CONTAINER || cls == HOST_WC_FRAMECHILD)
            ApplyTo(child, requiredNull);
    });
}

void UpdateRequiredButtons(HWND window) {
    HWND form = HostWinClass(window) == HOST_WC_FRAMECHILD ? GrandParentOf(window) : window;
    const bool requiredNull = AnyRequiredNull(form);
    ApplyTo(form, requiredNull);
    const uint32_t type = HostWinType(form);
    if (type == HOST_WT_TOOLBAR) {
        ForEachChild(GrandParentOf(form), [&](HWND other) {
            if (IsTopLevelForm(HostWinType(other)))
                ApplyTo(other, requiredNull);
        });
    } else if (IsTopLevelForm(type)) {
        ForEachChild(GetParent(form), [&](HWND sibling) {
            if (HWND bar =
                    FindChild(sibling, 0x7FFFFFFF, [](HWND child) { return HostWinType(child) == HOST_WT_TOOLBAR; }))
                ApplyTo(bar, requiredNull);
        });
    }
}

class FlagsParent final : public Window {
protected:
    WindowFamily &Family() const override { return FamilyOf<FlagsParent>(); }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        HWND window = GetSafeHwnd();
        const HLOCAL block = PropGet(window, kParentWinFlagsProp);
        if (!block)
            return Default();
        if (message == WM_DESTROY) {
            PropRemove(window, kParentWinFlagsProp);
            LocalFree(block);
        } else if (message == WM_COMMAND) {
            const WORD code = HIWORD(wParam);
            if (code == kSelectionChange || code == kComboEditChange || code == kEditChange)
                UpdateRequiredButtons(window);
        }
        return Default();
    }
};

} // namespace

bool EnsureParentProcedure(HWND window) {
    return SubclassWithRecord<FlagsParent>(window, kParentWinFlagsProp, &ParentWinFlagsBlock::oldProc) != nullptr;
}

} // namespace zk::menu
