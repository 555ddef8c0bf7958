// Bounded message pumps: they never wait for a message that may not come.
#pragma once

#include <windows.h>

#include <functional>

namespace zkt {

// Dispatches queued messages of this thread until the queue is empty or
// `maxMessages` have been dispatched. Returns the count dispatched.
int PumpMessages(int maxMessages = 10000);

// Dispatches messages until `done()` holds, checking it before each one.
// When the queue is empty it waits at most `waitMs` milliseconds in total
// for more (0: not at all). Returns done() at the end.
bool PumpUntil(const std::function<bool()> &done, int maxMessages = 10000, DWORD waitMs = 0);

} // namespace zkt
