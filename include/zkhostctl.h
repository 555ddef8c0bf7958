/* Controls of the reference host runtime for tests and the gallery: fault
 * injection, reference counts, the clock, window classification. Not part
 * of the host interface proper; an adapter for another runtime leaves them out. */
#ifndef ZKHOSTCTL_H
#define ZKHOSTCTL_H

#include <windows.h>
#include "zkhost.h" /* HostOutline, HostItem */
#include "zkrecord.h"

#ifndef ZKAPI
#define ZKAPI __stdcall
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The next `count` calls of HostStrAlloc fail (answer 0). */
void ZKAPI ZkHostFailAllocations(int32_t count);
/* HostStrAlloc calls so far, failed ones included, and the bytes of the last. */
int32_t ZKAPI ZkHostAllocCalls(void);
int32_t ZKAPI ZkHostLastAllocSize(void);
/* Live strings of the host, and the references one of them holds (0 if gone). */
int32_t ZKAPI ZkHostLiveStrings(void);
int32_t ZKAPI ZkHostStrRefs(HostStr handle);
/* A string as the application holds it (one reference), and dropping one. */
HostStr ZKAPI ZkHostStrMake(const wchar_t *text);
void ZKAPI ZkHostStrRelease(HostStr handle);
/* HostHalt records the call and returns instead of ending the process. */
void ZKAPI ZkHostHaltReturns(int32_t on);
int32_t ZKAPI ZkHostHaltCount(void);
/* A fixed present moment for HostDateCurrent; null returns to the real clock. */
void ZKAPI ZkHostSetClock(const HostDateTime *now);
/* Marks a window as a host window of the given type and class codes; type 0 forgets it. */
void ZKAPI ZkHostSetWinType(HWND window, uint32_t type, uint32_t cls);
/* The name of a window in the application's source (HostWinGetName). */
void ZKAPI ZkHostSetWinName(HWND window, const wchar_t *name);
/* Live arrays, and a dimension count for tests of multi-dimensional arrays. */
int32_t ZKAPI ZkHostLiveArrays(void);
int32_t ZKAPI ZkHostArraySetDimensions(HostArray array, int32_t count);
/* A named application resource for HostResourceFind (the bytes are copied). */
int32_t ZKAPI ZkHostResourceAdd(const wchar_t *name, const void *bytes, int32_t size);
/* HostWaitCursor calls that are currently on. */
int32_t ZKAPI ZkHostWaitCursorDepth(void);

/* The designer outline: outlines, items, bound windows, and what the
 * library asked of them. */
/* A new empty outline; 0 when none can be had. */
HostOutline ZKAPI ZkHostDesignNewOutline(void);
/* Ends an outline with its items; their windows are unbound. 1 or 0. */
int32_t ZKAPI ZkHostDesignFreeOutline(HostOutline outline);
/* A new last child of parent (0: top level) with a type; 0 on failure. */
HostItem ZKAPI ZkHostDesignAddItem(HostOutline outline, HostItem parent, int32_t type);
/* Binds a window to the item (null unbinds the item's window). 1 or 0. */
int32_t ZKAPI ZkHostDesignBindWindow(HostOutline outline, HostItem item, HWND window);
/* The flag HostDesignItemQueryFlag answers for the item. 1 or 0. */
int32_t ZKAPI ZkHostDesignSetItemFlag(HostOutline outline, HostItem item, int32_t flag);
/* Calls of HostDesignItemUpdate on the item so far; -1 for an unknown item. */
int32_t ZKAPI ZkHostDesignUpdates(HostOutline outline, HostItem item);
/* Calls of HostDesignNotifyItem on the item so far, and the flag of the
 * last in *lastFlag when given; -1 for an unknown item. */
int32_t ZKAPI ZkHostDesignNotifications(HostOutline outline, HostItem item, int32_t *lastFlag);
/* Items alive in all outlines. */
int32_t ZKAPI ZkHostDesignLiveItems(void);
/* What OrlParentWindowOnly answers for the children of `parent` (0 until set). */
void ZKAPI ZkHostSetParentWindowOnly(HWND parent, int32_t answer);

/* Host frames (HOST_FRAME_* of zkhost.h). A frame or MDI frame takes
 * `menu` as its own and destroys it with itself; a dialog shows it as its
 * platform menu; an MDI child is made in the MDI frame `parent`. */
#define ZKHOST_FRAME_Ribbon 0x0001 /* an MDI frame shows a ribbon bar */
HWND ZKAPI ZkHostFrameCreate(int32_t kind, HWND parent, const wchar_t *title, HMENU menu, uint32_t options);
/* The frame operations done on a host window and the ZKM_MenuCommand it
 * got, one line each ("AttachMenu", "InsertMenu(1025)", "MenuCommand(-5)"),
 * copied into `buffer` (then emptied); the length, -1 for no host window. */
int32_t ZKAPI ZkHostFrameTakeLog(HWND window, wchar_t *buffer, int32_t size);
/* The kind of picture the structure holds for an item: 0 none, 1 bitmap,
 * 2 icon; -1 for no such item. */
int32_t ZKAPI ZkHostFrameMenuPicture(HWND frame, int32_t id);
/* Opens the popup of a top-level item from the bar, as a click does
 * (modal until the popup closes): 1, or 0 for no such item. */
int32_t ZKAPI ZkHostFrameOpenMenu(HWND frame, int32_t position);
HWND ZKAPI ZkHostFrameMdiClient(HWND frame);

#ifdef __cplusplus
}
#endif

#endif
