#include "zkt_messages.h"

#include <algorithm>
#include <cstdio>
#include <sstream>

namespace zkt {
namespace {

std::string hex(unsigned long long value) {
    char buffer[24];
    std::snprintf(buffer, sizeof buffer, "0x%llx", value);
    return buffer;
}

std::string describe(const ExpectedMessage &entry) {
    std::string text = MessageName(entry.message);
    if (entry.flags & sent) {
        text += " sent";
    }
    if (entry.flags & posted) {
        text += " posted";
    }
    if (entry.flags & code) {
        text += " code=" + std::to_string(entry.wParam);
    } else if (entry.flags & wparam) {
        text += " wParam=" + hex(static_cast<unsigned long long>(entry.wParam));
    }
    if (entry.flags & defaulted) {
        text += " to the default procedure";
    }
    if (entry.flags & lparam) {
        text += " lParam=" + hex(static_cast<unsigned long long>(entry.lParam));
    }
    if (entry.hwnd) {
        text += " to " + hex(reinterpret_cast<std::uintptr_t>(entry.hwnd));
    }
    if (entry.flags & optional) {
        text += " (optional)";
    }
    return text;
}

bool matches(const ExpectedMessage &want, const RecordedMessage &got) {
    if (want.message != got.message) {
        return false;
    }
    if ((want.flags & sent) && got.posted) {
        return false;
    }
    if ((want.flags & posted) && !got.posted) {
        return false;
    }
    if (((want.flags & defaulted) != 0) != got.defaulted) {
        return false;
    }
    if ((want.flags & code) && want.wParam != HIWORD(got.wParam)) {
        return false;
    }
    if ((want.flags & wparam) && !(want.flags & code) && want.wParam != got.wParam) {
        return false;
    }
    if ((want.flags & lparam) && want.lParam != got.lParam) {
        return false;
    }
    return !want.hwnd || want.hwnd == got.hwnd;
}

::testing::AssertionResult failure(const std::string &what, const std::vector<const RecordedMessage *> &got) {
    std::ostringstream out;
    out << what << "\nrecorded (noise left out):";
    for (size_t i = 0; i < got.size(); ++i) {
        out << "\n  " << i << ": " << describe(*got[i]);
    }
    if (got.empty()) {
        out << " nothing";
    }
    return ::testing::AssertionFailure() << out.str();
}

} // namespace

std::string describe(const RecordedMessage &message) {
    return MessageName(message.message) +
           (message.posted      ? " posted"
            : message.defaulted ? " defaulted"
                                : " sent") +
           " wParam=" + hex(static_cast<unsigned long long>(message.wParam)) +
           " lParam=" + hex(static_cast<unsigned long long>(message.lParam)) + " to " +
           hex(reinterpret_cast<std::uintptr_t>(message.hwnd));
}

::testing::AssertionResult MatchSequence(const std::vector<RecordedMessage> &all,
                                         const std::vector<ExpectedMessage> &want, const std::vector<UINT> &ignore) {
    std::vector<const RecordedMessage *> got;
    for (const RecordedMessage &m : all) {
        if (std::find(ignore.begin(), ignore.end(), m.message) == ignore.end()) {
            got.push_back(&m);
        }
    }
    size_t g = 0;
    for (size_t w = 0; w < want.size(); ++w) {
        if (g < got.size() && matches(want[w], *got[g])) {
            ++g;
            continue;
        }
        if (want[w].flags & optional) {
            continue;
        }
        if (g == got.size()) {
            return failure(
                "entry " + std::to_string(w) + ": expected " + describe(want[w]) + ", but the recording ended", got);
        }
        return failure("entry " + std::to_string(w) + ": expected " + describe(want[w]) + ", got message " +
                           std::to_string(g) + ": " + describe(*got[g]),
                       got);
    }
    if (g < got.size()) {
        return failure("message " + std::to_string(g) + " was not expected: " + describe(*got[g]), got);
    }
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult MatchNamed(const std::vector<RecordedMessage> &all,
                                      const std::vector<ExpectedMessage> &want) {
    std::vector<RecordedMessage> named;
    for (const RecordedMessage &m : all) {
        const bool inTable = std::any_of(want.begin(), want.end(), [&](const ExpectedMessage &e) {
            return e.message == m.message && (!e.hwnd || e.hwnd == m.hwnd);
        });
        if (inTable) {
            named.push_back(m);
        }
    }
    return MatchSequence(named, want);
}

const std::vector<UINT> &CommonNoise() {
    static const std::vector<UINT> noise = {
        WM_GETICON,   WM_NCHITTEST,      WM_SETCURSOR,  WM_MOUSEMOVE, WM_NCMOUSEMOVE, WM_MOUSELEAVE, WM_NCMOUSELEAVE,
        WM_GETOBJECT, WM_IME_SETCONTEXT, WM_IME_NOTIFY, WM_ENTERIDLE, WM_SYNCPAINT,   WM_NCPAINT};
    return noise;
}

} // namespace zkt
