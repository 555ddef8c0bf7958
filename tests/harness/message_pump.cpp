#include "zkt_pump.h"

namespace zkt {
namespace {

bool DispatchOne() {
    MSG msg;
    if (!PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        return false;
    }
    if (msg.message == WM_QUIT) {
        // Not ours to swallow: leave it for whatever loop asked to quit.
        PostQuitMessage(static_cast<int>(msg.wParam));
        return false;
    }
    TranslateMessage(&msg);
    DispatchMessageW(&msg);
    return true;
}

} // namespace

int PumpMessages(int maxMessages) {
    int count = 0;
    while (count < maxMessages && DispatchOne()) {
        ++count;
    }
    return count;
}

bool PumpUntil(const std::function<bool()> &done, int maxMessages, DWORD waitMs) {
    const ULONGLONG deadline = GetTickCount64() + waitMs;
    for (int count = 0; count < maxMessages; ++count) {
        if (done()) {
            return true;
        }
        while (!DispatchOne()) {
            const ULONGLONG now = GetTickCount64();
            if (now >= deadline) {
                return done();
            }
            MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(deadline - now), QS_ALLINPUT);
        }
    }
    return done();
}

} // namespace zkt
