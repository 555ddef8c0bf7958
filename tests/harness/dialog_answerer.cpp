#include "zkt_dialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cwchar>

namespace zkt {
namespace {

constexpr UINT kPeriodMs = 10;
constexpr int kMaxGiveUps = 50;

thread_local std::vector<DialogAnswerer *> answerers;

std::wstring WindowText(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), length + 1)));
    return text;
}

std::wstring className(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

std::string narrow(const std::wstring &text) {
    std::string out;
    for (wchar_t c : text) {
        out += c < 0x80 ? static_cast<char>(c) : '?';
    }
    return out;
}

BOOL CALLBACK CollectDialog(HWND window, LPARAM list) {
    if (IsWindowVisible(window) && className(window) == L"#32770") {
        reinterpret_cast<std::vector<HWND> *>(list)->push_back(window);
    }
    return TRUE;
}

BOOL CALLBACK CollectControl(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<DialogControl> *>(list)->push_back(
        DialogControl{GetDlgCtrlID(window), className(window), WindowText(window)});
    return TRUE;
}

void CALLBACK TimerProc(HWND, UINT, UINT_PTR id, DWORD) {
    for (DialogAnswerer *answerer : answerers) {
        if (answerer->TimerId() == id) {
            answerer->tick();
            return;
        }
    }
}

} // namespace

std::vector<std::wstring> AnsweredDialog::StaticTexts() const {
    std::vector<std::wstring> out;
    for (const DialogControl &control : controls) {
        if (!control.text.empty() && _wcsicmp(control.className.c_str(), L"Static") == 0) {
            out.push_back(control.text);
        }
    }
    return out;
}

std::wstring AnsweredDialog::text(int id) const {
    for (const DialogControl &control : controls) {
        if (control.id == id) {
            return control.text;
        }
    }
    return std::wstring();
}

bool AnsweredDialog::HasControl(int id) const {
    return std::any_of(controls.begin(), controls.end(), [id](const DialogControl &c) { return c.id == id; });
}

DialogAnswerer::DialogAnswerer(int button, DialogMatch match)
    : buttons_{button}, repeat_(true), match_(std::move(match)) {
    start();
}

DialogAnswerer::DialogAnswerer(std::vector<int> buttons, DialogMatch match)
    : buttons_(std::move(buttons)), match_(std::move(match)) {
    start();
}

void DialogAnswerer::start() {
    timer_ = SetTimer(nullptr, 0, kPeriodMs, TimerProc);
    if (!timer_) {
        ADD_FAILURE() << "SetTimer failed, error " << GetLastError();
        return;
    }
    answerers.push_back(this);
}

DialogAnswerer::~DialogAnswerer() {
    if (timer_) {
        KillTimer(nullptr, timer_);
    }
    answerers.erase(std::remove(answerers.begin(), answerers.end(), this), answerers.end());
    for (const std::string &failure : failures_) {
        ADD_FAILURE() << "DialogAnswerer: " << failure;
    }
}

bool DialogAnswerer::matches(HWND dialog) const {
    if (!match_.caption.empty() && WindowText(dialog) != match_.caption) {
        return false;
    }
    return !match_.controlId || GetDlgItem(dialog, match_.controlId);
}

void DialogAnswerer::tick() {
    ++ticks_;
    std::vector<HWND> shown;
    EnumThreadWindows(GetCurrentThreadId(), CollectDialog, reinterpret_cast<LPARAM>(&shown));
    // Forget dialogs that have gone: their handles may come back.
    watched_.erase(
        std::remove_if(watched_.begin(), watched_.end(),
                       [&](const Watched &w) { return std::find(shown.begin(), shown.end(), w.hwnd) == shown.end(); }),
        watched_.end());
    for (HWND dialog : shown) {
        // A disabled dialog waits for one on top of it: that one comes first.
        if (!IsWindowEnabled(dialog)) {
            continue;
        }
        auto seen =
            std::find_if(watched_.begin(), watched_.end(), [dialog](const Watched &w) { return w.hwnd == dialog; });
        const bool stale = seen != watched_.end() && ticks_ - seen->since >= giveUpTicks_;
        if (seen != watched_.end() && seen->answered) {
            if (stale) {
                giveUp(dialog, "dialog \"" + narrow(WindowText(dialog)) + "\" did not close after its answer");
            }
        } else if (!matches(dialog)) {
            if (seen == watched_.end()) {
                mark(dialog, false);
            } else if (stale) {
                giveUp(dialog, "dialog \"" + narrow(WindowText(dialog)) + "\" does not match and was not answered");
            }
        } else if (dialogs_.size() >= (repeat_ ? maxRepeats_ : buttons_.size())) {
            giveUp(dialog, "dialog \"" + narrow(WindowText(dialog)) + "\" came after the " +
                               std::to_string(dialogs_.size()) + " expected");
        } else {
            answer(dialog);
        }
    }
}

void DialogAnswerer::answer(HWND dialog) {
    const int button = repeat_ ? buttons_.front() : buttons_[dialogs_.size()];
    AnsweredDialog record{WindowText(dialog), {}, button};
    EnumChildWindows(dialog, CollectControl, reinterpret_cast<LPARAM>(&record.controls));
    dialogs_.push_back(std::move(record));
    if (inspector_) {
        inspector_(dialog);
    }
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, button)));
    mark(dialog, true);
}

void DialogAnswerer::mark(HWND dialog, bool answered) {
    auto seen = std::find_if(watched_.begin(), watched_.end(), [dialog](const Watched &w) { return w.hwnd == dialog; });
    if (seen == watched_.end()) {
        watched_.push_back(Watched{dialog, ticks_, answered});
    } else {
        *seen = Watched{dialog, ticks_, answered};
    }
}

void DialogAnswerer::giveUp(HWND dialog, const std::string &why) {
    failures_.push_back(why);
    EndDialog(dialog, IDCANCEL);
    mark(dialog, true);
    if (++forced_ > kMaxGiveUps) {
        std::fprintf(stderr,
                     "zkharness: dialogs keep coming after %d forced endings (%s); "
                     "ending the test program\n",
                     kMaxGiveUps, why.c_str());
        std::fflush(stderr);
        std::fflush(stdout);
        ExitProcess(3);
    }
}

} // namespace zkt
