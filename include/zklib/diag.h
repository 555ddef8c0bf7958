/* ZKLIB: the application's diagnostics. Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_DIAG_H
#define ZKLIB_DIAG_H

/* Debug flags (ZelDebugSetFlags); DBG_Elapsed alone is set at start. */
#define DBG_Elapsed 0x00010000u    /* the stopwatch shows the time since the previous sample */
#define DBG_ClockTime 0x00020000u  /* the stopwatch shows the time of day */
#define DBG_MessageBox 0x00080000u /* output goes to a message box, not to the debugger */

/* A zero condition shows "<active window's name>: <text>" in a box
 * captioned "Assertion Failure"; nothing is halted. Always 1. */
int32_t ZKAPI ZelDebugAssert(int32_t condition, const wchar_t *text);
/* The text to the debugger with a line feed, or to a box captioned "Debug"
 * with DBG_MessageBox: 1; 0 when the level is above the debug level. */
int32_t ZKAPI ZelDebugString(const wchar_t *text, uint16_t level);
/* Adds the bits (set nonzero) or removes them; the new flags. */
uint32_t ZKAPI ZelDebugSetFlags(uint32_t flags, int32_t set);
uint32_t ZKAPI ZelDebugGetFlags(void);
/* Output with a level above this one is dropped (initially 0). 1. */
int32_t ZKAPI ZelDebugSetLevel(uint16_t level);
/* The stopwatch, one per process: a new run with its first sample; one more
 * named sample; the report of the run (to the debugger, or a box captioned
 * "Performance Time"), which ends it. Each gives 1, or 0: no run, no room
 * (a run holds at most 81 samples), or for ZelDebugEndTime a level above the
 * debug level, which keeps the samples. */
int32_t ZKAPI ZelDebugBeginTime(void);
int32_t ZKAPI ZelDebugSetTime(const wchar_t *text);
int32_t ZKAPI ZelDebugEndTime(const wchar_t *text, uint16_t level);

#endif
