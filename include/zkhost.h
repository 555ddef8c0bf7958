/* The host runtime interface: every operation ZKLIB calls on its host.
 *
 * ZKLIB imports these by their plain names from zkhost.dll (stdcall on
 * 32-bit Windows). The reference runtime implements them; an integration
 * with another runtime replaces that one DLL by an adapter with the same
 * exports. Values and ownership rules:
 *   - a string handle returned by a function belongs to the caller;
 *   - a handle read from an array is borrowed, no reference taken;
 *   - a handle written to an array hands the caller's reference to it;
 *   - a slot (HostStr*) that is overwritten drops the reference it held. */
#ifndef ZKHOST_H
#define ZKHOST_H

#include <windows.h>
#include "zkrecord.h"
#include <stdio.h>

#ifndef ZKAPI
#define ZKAPI __stdcall
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef FILE *HostFile;        /* host file handle: a C stream */
typedef uint32_t HostResource; /* named application resource */
typedef uint32_t HostOutline;  /* designer outline */
typedef uint32_t HostItem;     /* item of a designer outline */

/* Window type codes answered by HostWinType (compared for equality). */
#define HOST_WT_FORM 0x00000001u
#define HOST_WT_DIALOG 0x00000002u
#define HOST_WT_TABLE 0x00000004u
#define HOST_WT_DATAFIELD 0x00000008u
#define HOST_WT_MULTILINE 0x00000010u
#define HOST_WT_CHECKBOX 0x00000040u
#define HOST_WT_RADIOBUTTON 0x00000080u
#define HOST_WT_CUSTOMLIST 0x00001000u
#define HOST_WT_LISTBOX 0x00002000u
#define HOST_WT_COMBOBOX 0x00004000u
#define HOST_WT_FRAME 0x00040000u
#define HOST_WT_PICTURE 0x00080000u
#define HOST_WT_TOOLBAR 0x00200000u
#define HOST_WT_GRID 0x00800000u
#define HOST_WT_DIRECTMOVE 0x08000000u
#define HOST_WT_TABLEHOLDER 0x10000000u
#define HOST_WT_TOPLEVEL 0x40000000u
#define HOST_WT_FRAMECHILD 0x80000000u

/* Window class codes answered by HostWinClass. */
#define HOST_WC_FRAMECHILD 576u
#define HOST_WC_CONTAINER 0x40000u

/* Host notifications. */
#define HostMsgAnyEdit 0x2004
#define HostMsgSelect 0x2006
#define HostMsgDoubleClick 0x2009
/* Custom list controls answer their list window to this message. */
#define HostMsgGetListWindow 0x477

/* ---- strings ---------------------------------------------------------- */
int32_t ZKAPI HostStrAlloc(HostStr *slot, int32_t bytes);
wchar_t *ZKAPI HostStrLock(HostStr handle, int32_t *size);
int32_t ZKAPI HostStrSetLength(HostStr *slot, int32_t lengthWithTerminator);
int32_t ZKAPI HostStrAddRef(HostStr handle);
int32_t ZKAPI HostStrScan(const wchar_t *search, const wchar_t *text);
HostNumber *ZKAPI HostStrToNumber(HostNumber *out, const wchar_t *text);
HostDateTime *ZKAPI HostStrToDate(HostDateTime *out, const wchar_t *text);
int32_t ZKAPI HostStrIsValidNumber(const wchar_t *text);
int32_t ZKAPI HostStrIsValidDateTime(const wchar_t *text);
int32_t ZKAPI HostStrIsValidPicture(const wchar_t *text, int32_t dateTime);
int32_t ZKAPI HostStrTokenize(const wchar_t *text, const wchar_t *startDelimiters, const wchar_t *endDelimiters,
                              HostArray array);
HostStr ZKAPI HostDirGetCurrent(void);
void ZKAPI HostHalt(void);

/* ---- arrays ------------------------------------------------------------ */
HostArray ZKAPI HostArrayCreate(int32_t type);
int32_t ZKAPI HostArrayDestroy(HostArray array);
int32_t ZKAPI HostArrayGetDimensionCount(HostArray array, int32_t *count);
int32_t ZKAPI HostArrayIsEmpty(HostArray array);
int32_t ZKAPI HostArrayGetBounds(HostArray array, int32_t *low, int32_t *high);
int32_t ZKAPI HostArraySetBounds(HostArray array, int32_t low, int32_t high);
int32_t ZKAPI HostArrayGetUpperBound(HostArray array, int32_t dimension, int32_t *high);
int32_t ZKAPI HostArraySetUpperBound(HostArray array, int32_t dimension, int32_t high);
int32_t ZKAPI HostArrayGetHandle(HostArray array, uint32_t *value, int32_t index);
int32_t ZKAPI HostArrayGetBoolean(HostArray array, uint32_t *value, int32_t index);
int32_t ZKAPI HostArrayGetString(HostArray array, HostStr *value, int32_t index);
int32_t ZKAPI HostArrayGetNumber(HostArray array, HostNumber *value, int32_t index);
int32_t ZKAPI HostArrayGetDateTime(HostArray array, HostDateTime *value, int32_t index);
int32_t ZKAPI HostArraySetHandle(HostArray array, uint32_t value, int32_t index);
int32_t ZKAPI HostArraySetBoolean(HostArray array, uint32_t value, int32_t index);
int32_t ZKAPI HostArraySetString(HostArray array, HostStr value, int32_t index);
int32_t ZKAPI HostArraySetNumber(HostArray array, const HostNumber *value, int32_t index);
int32_t ZKAPI HostArraySetDateTime(HostArray array, const HostDateTime *value, int32_t index);

/* ---- numbers ----------------------------------------------------------- */
HostNumber *ZKAPI HostNumberFromShort(int32_t value, HostNumber *out);
HostNumber *ZKAPI HostNumberFromUShort(uint32_t value, HostNumber *out);
HostNumber *ZKAPI HostNumberFromLong(int32_t value, HostNumber *out);
HostNumber *ZKAPI HostNumberFromULong(uint32_t value, HostNumber *out);
HostNumber *ZKAPI HostNumberFromDouble(double value, HostNumber *out);
int32_t ZKAPI HostNumberToShort(const HostNumber *number, int16_t *value);
int32_t ZKAPI HostNumberToUShort(const HostNumber *number, uint16_t *value);
int32_t ZKAPI HostNumberToLong(const HostNumber *number, int32_t *value);
int32_t ZKAPI HostNumberToULong(const HostNumber *number, uint32_t *value);
int32_t ZKAPI HostNumberToDouble(const HostNumber *number, double *value);
int32_t ZKAPI HostNumberFromText(HostNumber *number, const wchar_t *text);
int32_t ZKAPI HostNumberCompare(const HostNumber *a, const HostNumber *b);
int32_t ZKAPI HostNumberAdd(uint8_t *out, const uint8_t *a, int32_t aLength, const uint8_t *b, int32_t bLength);
int32_t ZKAPI HostNumberSubtract(uint8_t *out, const uint8_t *a, int32_t aLength, const uint8_t *b, int32_t bLength);
int32_t ZKAPI HostNumberAddDouble(uint8_t *out, const uint8_t *a, int32_t aLength, double b);

/* ---- dates ------------------------------------------------------------- */
int32_t ZKAPI HostDateYear(HostDateTime value);
int32_t ZKAPI HostDateMonth(HostDateTime value);
int32_t ZKAPI HostDateDay(HostDateTime value);
int32_t ZKAPI HostDateHour(HostDateTime value);
int32_t ZKAPI HostDateMinute(HostDateTime value);
int32_t ZKAPI HostDateSecond(HostDateTime value);
int32_t ZKAPI HostDateWeekday(HostDateTime value); /* 0 Saturday, 1 Sunday .. 6 Friday */
HostDateTime *ZKAPI HostDateConstruct(HostDateTime *out, int32_t year, int32_t month, int32_t day, int32_t hour,
                                      int32_t minute, int32_t second);
HostDateTime *ZKAPI HostDateCurrent(HostDateTime *out);
/* Formats by picture; the handle is returned and, when slot is given, stored there. */
HostStr ZKAPI HostDateToStr(HostDateTime value, const wchar_t *picture, HostStr *slot);

/* ---- windows and fields ------------------------------------------------ */
uint32_t ZKAPI HostWinType(HWND window);
uint32_t ZKAPI HostWinClass(HWND window);
/* The run-time class of a host framework window, in place of a class test. */
int32_t ZKAPI HostWinGetName(HWND window, HostStr *name);
HWND ZKAPI HostWinFirstChild(HWND form, uint32_t typeMask);
HWND ZKAPI HostWinNextChild(HWND child, uint32_t typeMask);
COLORREF ZKAPI HostWinGetColor(HWND window, int32_t index); /* 5 background, 8 text */
int32_t ZKAPI HostWinCenter(HWND window);
int32_t ZKAPI HostWinSetRedraw(HWND window, int32_t redraw);
int32_t ZKAPI HostWinShow(HWND window);
int32_t ZKAPI HostWinHide(HWND window);
int32_t ZKAPI HostWinEnable(HWND window);
int32_t ZKAPI HostWinDisable(HWND window);
int32_t ZKAPI HostWinSetLocation(HWND window, HostNumber x, HostNumber y);
int32_t ZKAPI HostWinSetSize(HWND window, HostNumber width, HostNumber height);
HostNumber *ZKAPI HostPixelsToFormUnits(HostNumber *out, HWND window, int32_t pixels, int32_t axis);
int32_t ZKAPI HostFieldClear(HWND window);
int32_t ZKAPI HostPictureClear(HWND window);
int32_t ZKAPI HostFieldIsNull(HWND window);
int32_t ZKAPI HostFieldSetEditFlag(HWND window, int32_t flag);
int32_t ZKAPI HostFieldValidate(HWND window, int32_t flag, int32_t reserved);
int32_t ZKAPI HostWaitCursor(int32_t on);
HostResource ZKAPI HostResourceFind(const wchar_t *name);
int32_t ZKAPI HostResourceLoad(HostResource resource, HostStr *bytes);
int32_t ZKAPI HostStrFreeResource(HostStr bytes);

/* ---- list boxes and combo boxes of the host ----------------------------- */
int32_t ZKAPI HostListClear(HWND window);
int32_t ZKAPI HostListDelete(HWND window, int32_t index);
int32_t ZKAPI HostListCount(HWND window);
int32_t ZKAPI HostListGetSelection(HWND window);
int32_t ZKAPI HostListIsSelected(HWND window, int32_t index);
int32_t ZKAPI HostListSetSelection(HWND window, int32_t index);
int32_t ZKAPI HostListSetMultiSelection(HWND window, int32_t index, int32_t select);

/* ---- file streams ------------------------------------------------------- */
int32_t ZKAPI HostFileOpen(HostFile *file, const wchar_t *name, int32_t flags);
int32_t ZKAPI HostFileClose(HostFile file);
int32_t ZKAPI HostFileRead(HostFile file, void *buffer, int32_t bytes);
int32_t ZKAPI HostFileReadString(HostFile file, HostStr *slot, int32_t limit);
int32_t ZKAPI HostFileWrite(HostFile file, const void *buffer, int32_t bytes);
int32_t ZKAPI HostFileWriteString(HostFile file, const wchar_t *text);

/* ---- table windows ------------------------------------------------------ */
int32_t ZKAPI HostTblBeginPixels(HWND table, int32_t *firstRow, int32_t *lastRow);
int32_t ZKAPI HostTblSaveState(HWND table);
int32_t ZKAPI HostTblRestoreState(HWND table, int32_t state);
uint32_t ZKAPI HostGridGetRowFlags(HWND table, int32_t row);
int32_t ZKAPI HostTblFetchRow(HWND table, int32_t row);
int32_t ZKAPI HostTblQueryContext(HWND table);
int32_t ZKAPI HostTblSetContext(HWND table, int32_t row);
int32_t ZKAPI HostTblQueryVisibleRange(HWND table, int32_t *first, int32_t *last);
int32_t ZKAPI HostTblQueryRowFlags(HWND table, int32_t row, uint32_t mask);
int32_t ZKAPI HostTblFindNextRow(HWND table, int32_t *row, uint32_t onFlags, uint32_t offFlags);
HWND ZKAPI HostTblGetColumnWindow(HWND table, int32_t position, uint32_t flags);
int32_t ZKAPI HostTblGetColumnID(HWND column);
int32_t ZKAPI HostTblColumnGetFlag(HWND column, uint32_t mask);
int32_t ZKAPI HostTblColumnSetFlag(HWND column, uint32_t mask, int32_t value);
int32_t ZKAPI HostTblColumnSetColor(HWND column, COLORREF colour, int32_t reserved);

/* ---- designer outline --------------------------------------------------- *
 * A design-time window belongs to an outline and an item. Items form a tree
 * (item 0 stands for the outline's top level); each has a type, a flag,
 * attributes (texts by attribute number and index) and named properties
 * (bytes). Texts and bytes come back as host strings that are borrowed, as
 * those read from arrays: the host keeps each until its value changes or
 * its item goes, and the slot is written without dropping what it held. */
HostOutline ZKAPI HostDesignGetOutline(HWND window);
HostItem ZKAPI HostDesignGetItem(HWND window);
HWND ZKAPI HostDesignGetItemWindow(HostOutline outline, HostItem item);
HostItem ZKAPI HostDesignGetParentItem(HostOutline outline, HostItem item);
int32_t ZKAPI HostDesignGetItemType(HostOutline outline, HostItem item);
HostItem ZKAPI HostDesignFirstChild(HostOutline outline, HostItem item);
HostItem ZKAPI HostDesignNextSibling(HostOutline outline, HostItem item);
/* The item's flag: 1 when the designer wants HostDesignItemUpdate after a change. */
int32_t ZKAPI HostDesignItemQueryFlag(HostOutline outline, HostItem item);
/* Called as (outline, item, 1, 0, 0); 0 for an unknown item. */
int32_t ZKAPI HostDesignItemUpdate(HostOutline outline, HostItem item, int32_t a, int32_t b, int32_t c);
/* Called as (outline, item, flag, 0, 0); 0 for an unknown item. */
int32_t ZKAPI HostDesignNotifyItem(HostOutline outline, HostItem item, int32_t flag, int32_t b, int32_t c);
/* 1 and the text in *value, or 0 (the slot untouched) when the item has no such attribute. */
int32_t ZKAPI HostDesignGetAttribute(HostOutline outline, HostItem item, int32_t attribute, int32_t index,
                                     HostStr *value);
/* Sets the text of an attribute at an index (the library passes 1); 1 or 0. */
int32_t ZKAPI HostDesignSetAttribute(HostOutline outline, HostItem item, int32_t attribute, const wchar_t *text,
                                     int32_t index);
/* Removes the attribute at every index; 1, or 0 for an unknown item. */
int32_t ZKAPI HostDesignDeleteAttribute(HostOutline outline, HostItem item, int32_t attribute);
/* Stores `bytes` bytes (at least 1) under a name: 1, or 0. */
int32_t ZKAPI HostPropSet(HostOutline outline, HostItem item, const wchar_t *name, const void *data, int32_t bytes);
/* Nonzero and, in *data, a string whose locked size is one less than the
 * count stored, holding that many of the bytes; 0 when there is no such property. */
int32_t ZKAPI HostPropGet(HostOutline outline, HostItem item, const wchar_t *name, HostStr *data);

/* ---- multi-byte helpers -------------------------------------------------- */
void *ZKAPI HostByteAlloc(int32_t size);
int32_t ZKAPI HostByteFree(void *block);
/* Copies at most limit bytes; nonzero when a double-byte character had to be left out. */
int32_t ZKAPI HostMbcsCopy(char *destination, const char *source, int32_t limit);

/* ---- host frames ----------------------------------------------------------- *
 * The host's frame windows: a frame ("Marlo:AccFrame") and an MDI frame
 * ("Marlo:MDIFrame") keep a menu of their own ("our menu", not attached to
 * the window, so GetMenu gives 0) and a structure read from it that their
 * bar shows; changes reach that structure only through these operations.
 * MDI children and host dialogs are host windows without one. Every
 * operation on a window that is not a frame of the two frame classes (or,
 * where noted, an MDI frame) answers 0 and does nothing. */
#define HOST_FRAME_None 0     /* no host frame window */
#define HOST_FRAME_Frame 1    /* "Marlo:AccFrame" */
#define HOST_FRAME_MDIFrame 2 /* "Marlo:MDIFrame" */
#define HOST_FRAME_MDIChild 3 /* an MDI child of an MDI frame */
#define HOST_FRAME_Dialog 4   /* a host dialog */

/* The kind of a host window, in place of a run-time class test. */
int32_t ZKAPI HostFrameKind(HWND window);
HMENU ZKAPI HostFrameGetOurMenuHandle(HWND frame);
/* Takes `menu` as the frame's menu and reads the structure again from it. */
int32_t ZKAPI HostFrameAttachMenu(HWND frame, HMENU menu);
/* The bar shows the structure again. */
int32_t ZKAPI HostFrameUpdateMenuBar(HWND frame);
int32_t ZKAPI HostFrameUpdateMenuState(HWND frame, int32_t flag);
/* Adds the platform's item `id` (already in the frame's menu) to the
 * structure at its place: 1, or 0 when the menu has no such item. */
int32_t ZKAPI HostFrameInsertMenu(HWND frame, int32_t id, uint32_t flags);
int32_t ZKAPI HostFrameMenuHasItem(HWND frame, int32_t id);
/* The structure's text of an item, the key being a popup's submenu or a
 * command id: copied into `buffer` (`size` characters with the terminator,
 * cut to fit); the length of the whole text, 0 for no item. */
int32_t ZKAPI HostFrameGetMenuText(HWND frame, INT_PTR key, wchar_t *buffer, int32_t size);
/* 1, or 0 when the structure has no such item. */
int32_t ZKAPI HostFrameSetMenuText(HWND frame, int32_t id, const wchar_t *text);
int32_t ZKAPI HostFrameGetMenuCheck(HWND frame, int32_t id);
/* The item of `id`, or (id -1) the one at `selector` in `menu`: 1, or 0. */
int32_t ZKAPI HostFrameSetMenuCheck(HWND frame, HMENU menu, int32_t selector, int32_t id, int32_t flag);
int32_t ZKAPI HostFrameGetMenuEnable(HWND frame, int32_t id);
int32_t ZKAPI HostFrameSetMenuEnable(HWND frame, HMENU menu, int32_t selector, int32_t id, int32_t flag);
/* The two forms of SetMenuPicture: the item's picture, and its text when
 * one is given. Pictures stay the caller's. 1, or 0 for no such item. */
int32_t ZKAPI HostFrameSetMenuPictureIcon(HWND frame, int32_t id, const wchar_t *text, HICON icon);
int32_t ZKAPI HostFrameSetMenuPictureBitmap(HWND frame, int32_t id, const wchar_t *text, HBITMAP bitmap, HBITMAP mask,
                                            int32_t width, int32_t height);
/* MDI frames only: whether a menu is the Windows menu (the popup holding
 * a window command, 0xE130 to 0xE13F), and the text it lists for an MDI
 * child's command id (from 0xFF00), as HostFrameGetMenuText. */
int32_t ZKAPI HostFrameIsWindowsMenu(HWND frame, HMENU menu);
int32_t ZKAPI HostFrameGetWindowsMenuText(HWND frame, int32_t id, wchar_t *buffer, int32_t size);
/* MDI frames only: the ribbon bar, and the flag that says it is in use in
 * place of the menu bar; the ribbon bar's refresh from the structure. */
HWND ZKAPI HostFrameGetRibbonBar(HWND frame);
int32_t ZKAPI HostFrameRibbonInUse(HWND frame);
int32_t ZKAPI HostRibbonRefresh(HWND ribbon);

/* ---- named host functions ------------------------------------------------ */
/* Nonzero when the window is made on its own under a parent that exists,
 * so a control may announce itself at once; 0 while the host is still
 * building the form around it. */
int32_t ZKAPI OrlParentWindowOnly(HWND window);
HWND ZKAPI OrlGetDlgItemEx(HWND window, int32_t id);

#ifdef __cplusplus
}
#endif

#endif
