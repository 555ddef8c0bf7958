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
    bool posted; // taken from the queue rather than sent
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
    void watchAll(); // every window of the thread, thread messages included
    void clear() { messages_.clear(); }

    const std::vector<RecordedMessage> &messages() const { return messages_; }
    int count(UINT message, HWND window = nullptr) const;

    // Called by the hooks.
    void record(HWND window, UINT message, WPARAM wParam, LPARAM lParam, bool posted);

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
    optional = 1u << 4, // may be missing
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
::testing::AssertionResult matchSequence(const std::vector<RecordedMessage> &got,
                                         const std::vector<ExpectedMessage> &want,
                                         const std::vector<UINT> &ignore = {});

// The same, with only the recorded messages that the table names taking
// part (the message, and the window where an entry gives one): whatever
// else the system delivers meanwhile cannot change the outcome.
::testing::AssertionResult matchNamed(const std::vector<RecordedMessage> &got,
                                      const std::vector<ExpectedMessage> &want);

// Messages that Wine and the window manager send when they like (hit tests,
// cursor, icons, non-client paint, IME...), for `ignore`.
const std::vector<UINT> &commonNoise();

// "WM_COMMAND" for 0x0111; numbers without a name as "0x6008".
std::string messageName(UINT message);

std::string describe(const RecordedMessage &message);

} // namespace zkt
