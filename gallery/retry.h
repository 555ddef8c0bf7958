// Answers the library's retry dialog (dialog 201) while a call that shows
// it is under way: a thread timer, dispatched by the dialog's own modal
// loop, finds the dialog, reads and photographs it, then clicks Retry.
#pragma once

#include <windows.h>
#include <string>

#include "bmpfile.h"

namespace gallery {

struct RetryDialogSeen {
    int dialogs = 0;      // distinct appearances of the dialog
    std::wstring caption; // of the first appearance
    std::wstring message; // control 101
    std::wstring retry;   // control 203
    std::wstring halt;    // control 204
    Picture picture;      // of the first appearance
    bool gaveUp = false;  // the modal loop ran on with nothing left to click
};

class RetryAnswerer {
public:
    // `delayMs`: how long a dialog stays up before Retry is clicked.
    // `giveUpMs`: how long the modal loop may run on with neither a new
    // dialog nor an answer before the answerer ends it with WM_QUIT.
    explicit RetryAnswerer(DWORD delayMs, DWORD giveUpMs = 10000);
    ~RetryAnswerer();
    RetryAnswerer(const RetryAnswerer &) = delete;
    RetryAnswerer &operator=(const RetryAnswerer &) = delete;

    bool Armed() const { return timer_ != 0; }
    const RetryDialogSeen &Seen() const { return seen_; }

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR id, DWORD);
    void OnTick();
    void Stop();

    UINT_PTR timer_ = 0;
    DWORD delayMs_;
    DWORD giveUpMs_;
    DWORD lastProgress_;
    HWND current_ = nullptr; // the dialog on screen now
    DWORD shownAt_ = 0;
    bool answered_ = false; // the current dialog has been answered
    RetryDialogSeen seen_;
};

} // namespace gallery
