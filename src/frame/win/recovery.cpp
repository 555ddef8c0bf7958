// The retry dialog shown when the host cannot allocate a string.
#include "frame/win/host.h"
#include "resource.h"

#include <string>

namespace {

INT_PTR CALLBACK RecoveryDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: {
        HostWinCenter(dialog);
        SetWindowTextW(dialog, reinterpret_cast<const wchar_t *>(lParam));
        SendDlgItemMessageW(dialog, IDC_RECOVERY_ICON, STM_SETICON,
                            reinterpret_cast<WPARAM>(LoadIconW(nullptr, IDI_HAND)), 0);
        // Closing would leave the application without an answer: the
        // close command stays visible but cannot be chosen.
        HMENU system = GetSystemMenu(dialog, FALSE);
        ModifyMenuW(system, SC_CLOSE, MF_BYCOMMAND | MF_STRING | MF_GRAYED, SC_CLOSE, L"&Close Alt+F4");
        return TRUE;
    }
    case WM_COMMAND:
        switch (LOWORD(wParam)) {
        case IDC_RECOVERY_RETRY:
            EndDialog(dialog, ZEL_RECOVERY_RETRY);
            return TRUE;
        case IDC_RECOVERY_HALT:
            EndDialog(dialog, ZEL_RECOVERY_HALT);
            return TRUE;
        }
        break;
    }
    return FALSE;
}

} // namespace

extern "C" int32_t ZKAPI ZelErrorRecovery(const wchar_t *caption) {
    // The caller's text may live in host memory that the dialog's message
    // loop could move: keep a copy for the dialog's lifetime.
    const std::wstring copy = caption ? caption : L"";
    return static_cast<int32_t>(DialogBoxParamW(zk::ModuleInstance, MAKEINTRESOURCEW(IDD_RECOVERY), GetActiveWindow(),
                                                RecoveryDialogProc, reinterpret_cast<LPARAM>(copy.c_str())));
}
