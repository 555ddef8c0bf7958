// Message sequences in the manner of Wine's conformance tests: record what
// reaches the windows of this thread, then check it against a table.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zkt {

struct RecordedMessage {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool posted;            // taken from the queue rather than sent
    bool defaulted = false; // passed on to a default procedure a DefaultWatch watches
};

// Records, in order, messages sent to watched windows (WH_CALLWNDPROC) and
// messages taken from the queue for them (WH_GETMESSAGE). Thread hooks: only
// this thread's traffic is seen. A message that a window procedure calls
// another procedure with directly is not a message and is not seen.
class MessageRecorder {
public:
    MessageRecorder();
    ~MessageRecorder();
    MessageRecorder(const MessageRecorder &) = delete;
    MessageRecorder &operator=(const MessageRecorder &) = delete;

    void watch(HWND window);
    void WatchAll(); // every window of the thread, thread messages included
    void clear() { messages_.clear(); }

    const std::vector<RecordedMessage> &messages() const { return messages_; }
    int count(UINT message, HWND window = nullptr) const;
    // Position of the first message to the window with that wParam, or -1.
    long find(HWND window, UINT message, WPARAM wParam) const;
    // Position of the first WM_COMMAND to the window with that notification
    // code in wParam's high word, or -1.
    long FindCommand(HWND window, int code) const;
    // The notification codes of the WM_COMMANDs from a control (its window
    // in lParam), in order: what a parent hears of it.
    std::vector<int> notifications(HWND control) const;

    // Called by the hooks.
    void record(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool posted, bool defaulted = false);

private:
    std::vector<HWND> watched_;
    bool all_ = false;
    std::vector<RecordedMessage> messages_;
};

// Flags of an expected entry. Without sent or posted either kind matches;
// without wparam or lparam that parameter is not compared.
enum : unsigned {
    sent = 1u << 0,
    posted = 1u << 1,
    wparam = 1u << 2,
    lparam = 1u << 3,
    optional = 1u << 4,  // may be missing
    code = 1u << 5,      // a WM_COMMAND compared by its notification code: wParam's high word against wParam
    defaulted = 1u << 6, // went on to the default procedure (recorded by a DefaultWatch)
};

struct ExpectedMessage {
    UINT message;
    unsigned flags = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    HWND hwnd = nullptr; // nullptr: any window
};

// Compares the recorded messages, leaving out those in `ignore`, with the
// table in order. Every recorded message must be matched by an entry and
// every entry that is not optional by a message. A failure names the first
// difference and lists what was recorded.
::testing::AssertionResult MatchSequence(const std::vector<RecordedMessage> &got,
                                         const std::vector<ExpectedMessage> &want,
                                         const std::vector<UINT> &ignore = {});

// The same, with only the recorded messages that the table names taking
// part (the message, and the window where an entry gives one): whatever
// else the system delivers meanwhile cannot change the outcome.
::testing::AssertionResult MatchNamed(const std::vector<RecordedMessage> &got,
                                      const std::vector<ExpectedMessage> &want);

// A notification a control posts to its parent: WM_COMMAND with the code,
// the control's window in lParam.
inline ExpectedMessage Notified(int notification, HWND control) {
    return ExpectedMessage{WM_COMMAND, posted | code | lparam, static_cast<WPARAM>(notification),
                           reinterpret_cast<LPARAM>(control)};
}

// Watches what a window object passes on to its default procedure: while
// alive, the procedure it hands out (to put in the object's place of the
// default procedure) records each message, with `defaulted` set, in the
// recorders alive on the thread, then calls `next` (DefWindowProcW when
// null). One watch at a time.
class DefaultWatch {
public:
    explicit DefaultWatch(WNDPROC next);
    ~DefaultWatch();
    DefaultWatch(const DefaultWatch &) = delete;
    DefaultWatch &operator=(const DefaultWatch &) = delete;
    WNDPROC procedure() const;
};

// Messages that Wine and the window manager send when they like (hit tests,
// cursor, icons, non-client paint, IME...), for `ignore`.
const std::vector<UINT> &CommonNoise();

// "WM_COMMAND" for 0x0111; numbers without a name as "0x6008".
std::string MessageName(UINT message);

std::string describe(const RecordedMessage &message);

} // namespace zkt
