// Bounded message pumps: the scenario is linear code that lets the windows
// catch up between steps.
#pragma once

namespace gallery {

// Dispatches what is queued (paints included) until the queue is empty or
// `limit` messages have gone. Returns false if a WM_QUIT was taken out.
bool PumpPending(int limit = 10000);

// The interactive loop: until the form is closed (WM_QUIT).
void RunUntilQuit();

} // namespace gallery
