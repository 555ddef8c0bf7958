#include "retry.h"

#include "capture.h"

namespace gallery {
namespace {

constexpr UINT kPeriodMs = 20;
constexpr int kMessageId = 101;
constexpr int kRetryId = 203;
constexpr int kHaltId = 204;

RetryAnswerer *active = nullptr; // one at a time: the timer callback finds it here

std::wstring TextOf(HWND window) {
    wchar_t buffer[256] = {};
    if (window)
        GetWindowTextW(window, buffer, 256);
    return buffer;
}

BOOL CALLBACK FindRecoveryDialog(HWND window, LPARAM found) {
    wchar_t cls[16] = {};
    GetClassNameW(window, cls, 16);
    if (IsWindowVisible(window) && lstrcmpW(cls, L"#32770") == 0 && GetDlgItem(window, kRetryId) &&
        GetDlgItem(window, kHaltId)) {
        *reinterpret_cast<HWND *>(found) = window;
        return FALSE;
    }
    return TRUE;
}

} // namespace

RetryAnswerer::RetryAnswerer(DWORD delayMs, DWORD giveUpMs)
    : delayMs_(delayMs), giveUpMs_(giveUpMs), lastProgress_(GetTickCount()) {
    if (active)
        return; // nested answerers are a scenario bug: the outer one stays in charge
    timer_ = SetTimer(nullptr, 0, kPeriodMs, Tick);
    if (timer_)
        active = this;
}

RetryAnswerer::~RetryAnswerer() { Stop(); }

void RetryAnswerer::Stop() {
    if (timer_)
        KillTimer(nullptr, timer_);
    timer_ = 0;
    if (active == this)
        active = nullptr;
}

void CALLBACK RetryAnswerer::Tick(HWND, UINT, UINT_PTR id, DWORD) {
    if (active && active->timer_ == id)
        active->OnTick();
}

void RetryAnswerer::OnTick() {
    const DWORD now = GetTickCount();
    HWND dialog = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindRecoveryDialog, reinterpret_cast<LPARAM>(&dialog));
    if (dialog && dialog != current_) {
        shownAt_ = lastProgress_ = now;
        answered_ = false;
        if (++seen_.dialogs == 1) {
            seen_.caption = TextOf(dialog);
            seen_.message = TextOf(GetDlgItem(dialog, kMessageId));
            seen_.retry = TextOf(GetDlgItem(dialog, kRetryId));
            seen_.halt = TextOf(GetDlgItem(dialog, kHaltId));
            seen_.picture = CaptureTopLevel(dialog);
        }
    }
    current_ = dialog;
    if (dialog && !answered_ && now - shownAt_ >= delayMs_) {
        answered_ = true;
        lastProgress_ = now;
        PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(kRetryId, BN_CLICKED),
                     reinterpret_cast<LPARAM>(GetDlgItem(dialog, kRetryId)));
    }
    if (now - lastProgress_ > giveUpMs_ + delayMs_) {
        // A modal loop with no dialog to answer, or a dialog that ignores
        // Retry: end the loop the only way left, so that the scenario can
        // report instead of hanging.
        seen_.gaveUp = true;
        Stop();
        PostQuitMessage(3);
    }
}

} // namespace gallery
