/* Controls of the reference host runtime for tests and the gallery: fault
 * injection, reference counts, the clock, window classification. Not part
 * of the host interface proper; an adapter for another runtime leaves them out. */
#ifndef ZKHOSTCTL_H
#define ZKHOSTCTL_H

#include <windows.h>
#include "zkrecord.h"

#ifndef ZKAPI
#define ZKAPI __stdcall
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The next `count` calls of HostStrAlloc fail (answer 0). */
void    ZKAPI ZkHostFailAllocations(int32_t count);
/* HostStrAlloc calls so far, failed ones included, and the bytes of the last. */
int32_t ZKAPI ZkHostAllocCalls(void);
int32_t ZKAPI ZkHostLastAllocSize(void);
/* Live strings of the host, and the references one of them holds (0 if gone). */
int32_t ZKAPI ZkHostLiveStrings(void);
int32_t ZKAPI ZkHostStrRefs(HostStr handle);
/* A string as the application holds it (one reference), and dropping one. */
HostStr    ZKAPI ZkHostStrMake(const wchar_t *text);
void    ZKAPI ZkHostStrRelease(HostStr handle);
/* HostHalt records the call and returns instead of ending the process. */
void    ZKAPI ZkHostHaltReturns(int32_t on);
int32_t ZKAPI ZkHostHaltCount(void);
/* A fixed present moment for HostDateCurrent; null returns to the real clock. */
void    ZKAPI ZkHostSetClock(const HostDateTime *now);
/* Marks a window as a host window of the given type and class codes; type 0 forgets it. */
void    ZKAPI ZkHostSetWinType(HWND window, uint32_t type, uint32_t cls);
/* The name of a window in the application's source (HostWinGetName). */
void    ZKAPI ZkHostSetWinName(HWND window, const wchar_t *name);
/* Live arrays, and a dimension count for tests of multi-dimensional arrays. */
int32_t ZKAPI ZkHostLiveArrays(void);
int32_t ZKAPI ZkHostArraySetDimensions(HostArray array, int32_t count);
/* A named application resource for HostResourceFind (the bytes are copied). */
int32_t ZKAPI ZkHostResourceAdd(const wchar_t *name, const void *bytes, int32_t size);
/* HostWaitCursor calls that are currently on. */
int32_t ZKAPI ZkHostWaitCursorDepth(void);

#ifdef __cplusplus
}
#endif

#endif
