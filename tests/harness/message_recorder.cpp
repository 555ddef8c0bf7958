#include "zkt_messages.h"

#include <algorithm>

namespace zkt {
namespace {

// One pair of hooks per thread, shared by the recorders alive on it, so that
// two recorders do not see each message twice.
struct ThreadHooks {
    HHOOK callWndProc = nullptr;
    HHOOK getMessage = nullptr;
    std::vector<MessageRecorder *> recorders;
};

thread_local ThreadHooks hooks;

LRESULT CALLBACK CallWndProcHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION) {
        const auto *cwp = reinterpret_cast<const CWPSTRUCT *>(lParam);
        for (MessageRecorder *recorder : hooks.recorders) {
            recorder->record(cwp->hwnd, cwp->message, cwp->wParam, cwp->lParam, false);
        }
    }
    return CallNextHookEx(hooks.callWndProc, code, wParam, lParam);
}

LRESULT CALLBACK GetMessageHook(int code, WPARAM wParam, LPARAM lParam) {
    // PM_NOREMOVE peeks would record a message twice.
    if (code == HC_ACTION && wParam == PM_REMOVE) {
        const auto *msg = reinterpret_cast<const MSG *>(lParam);
        for (MessageRecorder *recorder : hooks.recorders) {
            recorder->record(msg->hwnd, msg->message, msg->wParam, msg->lParam, true);
        }
    }
    return CallNextHookEx(hooks.getMessage, code, wParam, lParam);
}

WNDPROC watchedNext = nullptr;

LRESULT CALLBACK DefaultWatchProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    for (MessageRecorder *recorder : hooks.recorders) {
        recorder->record(window, message, wParam, lParam, false, true);
    }
    return watchedNext ? CallWindowProcW(watchedNext, window, message, wParam, lParam)
                       : DefWindowProcW(window, message, wParam, lParam);
}

} // namespace

DefaultWatch::DefaultWatch(WNDPROC next) { watchedNext = next; }
DefaultWatch::~DefaultWatch() { watchedNext = nullptr; }
WNDPROC DefaultWatch::procedure() const { return &DefaultWatchProc; }

MessageRecorder::MessageRecorder() {
    if (hooks.recorders.empty()) {
        const DWORD thread = GetCurrentThreadId();
        hooks.callWndProc = SetWindowsHookExW(WH_CALLWNDPROC, CallWndProcHook, nullptr, thread);
        hooks.getMessage = SetWindowsHookExW(WH_GETMESSAGE, GetMessageHook, nullptr, thread);
        if (!hooks.callWndProc || !hooks.getMessage) {
            ADD_FAILURE() << "SetWindowsHookExW failed, error " << GetLastError();
        }
    }
    hooks.recorders.push_back(this);
}

MessageRecorder::~MessageRecorder() {
    auto &list = hooks.recorders;
    list.erase(std::remove(list.begin(), list.end(), this), list.end());
    if (list.empty()) {
        if (hooks.callWndProc) {
            UnhookWindowsHookEx(hooks.callWndProc);
        }
        if (hooks.getMessage) {
            UnhookWindowsHookEx(hooks.getMessage);
        }
        hooks.callWndProc = hooks.getMessage = nullptr;
    }
}

void MessageRecorder::watch(HWND window) { watched_.push_back(window); }

void MessageRecorder::WatchAll() { all_ = true; }

void MessageRecorder::record(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool posted, bool defaulted) {
    if (all_ || std::find(watched_.begin(), watched_.end(), window) != watched_.end()) {
        messages_.push_back(RecordedMessage{window, message, wParam, lParam, posted, defaulted});
    }
}

long MessageRecorder::find(HWND window, UINT message, WPARAM wParam) const {
    for (size_t i = 0; i < messages_.size(); ++i) {
        const RecordedMessage &m = messages_[i];
        if (m.hwnd == window && m.message == message && m.wParam == wParam && !m.defaulted) {
            return static_cast<long>(i);
        }
    }
    return -1;
}

long MessageRecorder::FindCommand(HWND window, int notification) const {
    for (size_t i = 0; i < messages_.size(); ++i) {
        const RecordedMessage &m = messages_[i];
        if (m.hwnd == window && m.message == WM_COMMAND && HIWORD(m.wParam) == notification && !m.defaulted) {
            return static_cast<long>(i);
        }
    }
    return -1;
}

std::vector<int> MessageRecorder::notifications(HWND control) const {
    std::vector<int> codes;
    for (const RecordedMessage &m : messages_) {
        if (m.message == WM_COMMAND && reinterpret_cast<HWND>(m.lParam) == control && !m.defaulted) {
            codes.push_back(HIWORD(m.wParam));
        }
    }
    return codes;
}

int MessageRecorder::count(UINT message, HWND window) const {
    return static_cast<int>(std::count_if(messages_.begin(), messages_.end(), [&](const auto &m) {
        return m.message == message && (!window || m.hwnd == window);
    }));
}

} // namespace zkt
