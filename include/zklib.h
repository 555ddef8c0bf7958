/* ZKLIB ("Zelkova Kit"): the public C interface of the library.
 * Every export and every contract constant. Exports are stdcall with
 * undecorated names on both 32-bit and 64-bit Windows. */
#ifndef ZKLIB_H
#define ZKLIB_H

#include <windows.h>
#include "zkrecord.h"

#ifndef ZKAPI
#define ZKAPI __stdcall
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- return codes --------------------------------------------------------- */
#define ZEL_FAILED (-1)
#define ZEL_FILE_NOT_FOUND (-2)
#define ZEL_PATH_NOT_FOUND (-3)
#define ZEL_NOT_ENOUGH_MEMORY (-8)
#define ZEL_INVALID_DRIVE (-15)
#define ZEL_NO_MORE_FILES (-18)
#define ZEL_READ_FAULT (-30)
#define ZEL_DISK_FULL (-39)
#define ZEL_INVALID_PARAMETER (-87)

/* Results of the retry dialog. */
#define ZEL_RECOVERY_RETRY 1
#define ZEL_RECOVERY_HALT 2

/* ---- frame ---------------------------------------------------------------- */
int32_t ZKAPI ZelErrorRecovery(const wchar_t *caption);

/* ---- library start-up and registry ---------------------------------------- */
HostStr ZKAPI ZelGetVersion(void);
HostStr ZKAPI ZelGetCopyright(void);
HostNumber ZKAPI ZelGetWinVersion(void);
int32_t ZKAPI ZelGetWinFlags(void);
int32_t ZKAPI ZelGetKeyState(int32_t virtualKey);
int32_t ZKAPI ZelGetSystemMetrics(int32_t index);
int32_t ZKAPI ZelSendMsgString(HWND window, UINT message, WPARAM wParam, const wchar_t *text);

/* ---- string functions ----------------------------------------------------- */
HostStr ZKAPI ZelStrTrim(const wchar_t *text);
HostStr ZKAPI ZelStrLeftTrim(const wchar_t *text);
HostStr ZKAPI ZelStrRightTrim(const wchar_t *text);
HostStr ZKAPI ZelStrPad(const wchar_t *text, int32_t width);
HostStr ZKAPI ZelStrPadB(const wchar_t *text, int32_t width);
HostStr ZKAPI ZelStrProper(const wchar_t *text);
HostStr ZKAPI ZelStrSubstitute(const wchar_t *text, const wchar_t *search, const wchar_t *replacement);
int32_t ZKAPI ZelStrScanReverse(const wchar_t *text, int32_t start, const wchar_t *search);
HostStr ZKAPI ZelStrChoose(uint32_t condition, HostStr a, HostStr b);
HostStr ZKAPI ZelStrExpand(const wchar_t *templateText, HostArray array);

/* ---- number and choice functions ------------------------------------------ */
HostNumber ZKAPI ZelNumberChoose(uint32_t condition, HostNumber a, HostNumber b);
uint32_t ZKAPI ZelNumberBitSet(uint32_t *word, uint32_t mask);
uint32_t ZKAPI ZelNumberBitClear(uint32_t *word, uint32_t mask);
uint32_t ZKAPI ZelNumberHighByte(uint32_t value);
uint8_t ZKAPI ZelNumberLowByte(uint32_t value);
uint32_t ZKAPI ZelNumberMakeLong(uint16_t low, uint16_t high);

/* ---- the other areas, one header each ------------------------------------ */
#include "zklib/array.h"
#include "zklib/calendar.h"
#include "zklib/controls.h"
#include "zklib/designer.h"
#include "zklib/diag.h"
#include "zklib/dos.h"
#include "zklib/files.h"
#include "zklib/headerlist.h"
#include "zklib/list.h"
#include "zklib/listfn.h"
#include "zklib/listpaint.h"
#include "zklib/menu.h"
#include "zklib/netprofile.h"
#include "zklib/outline_file.h"
#include "zklib/outline_tree.h"
#include "zklib/palette.h"
#include "zklib/picture.h"
#include "zklib/stream.h"
#include "zklib/strtable.h"
#include "zklib/window.h"

#ifdef __cplusplus
}
#endif

#endif
