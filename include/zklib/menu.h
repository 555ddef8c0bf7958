/* ZKLIB: menu extensions: the messages that cross to the host frame and the
 * ZelMenu exports. Included by zklib.h, inside its extern "C" block.
 *
 * The constants are plain macros with no platform type, so the portable core
 * includes this file too; the export declarations are read only when it comes
 * in through zklib.h.
 *
 * An item argument (selector) is a position from 0 to 1023, a command id from
 * 1024 up, or below 0 a command id of the host's own range. The insert
 * functions read their position otherwise: -1 and above is a position (-1
 * appends), below -1 a command id. */
#ifndef ZKLIB_MENU_CONSTANTS_H
#define ZKLIB_MENU_CONSTANTS_H

/* Sent to the frame, wParam 0, lParam the id: an application's item was chosen. */
#define ZKM_MenuCommand 0x6007
/* Sent by the host to the frame: the library forgets its menu records; result 1. */
#define ZKM_MenuClear 0x600F

/* Top bit of ZelMenuInsert's flags: the host frame does not attach its menu
 * again for this item (the next insert without it does). */
#define MENU_NoAttach 0x8000

#endif /* ZKLIB_MENU_CONSTANTS_H */

#if defined(ZKLIB_H) && !defined(ZKLIB_MENU_H)
#define ZKLIB_MENU_H

/* The window's menu (or its parent's, or its host frame's own menu), 0. */
HMENU ZKAPI ZelMenuGetHandle(HWND window);
/* Its system menu, or its parent's, or 0. */
HMENU ZKAPI ZelMenuGetSystemHandle(HWND window);
HMENU ZKAPI ZelMenuGetPopupHandle(HMENU menu, int32_t position);
/* Item count, -1 for no menu. */
int32_t ZKAPI ZelMenuGetCount(HMENU menu);
/* Position of a command id, -1 when absent. */
int32_t ZKAPI ZelMenuGetPosition(HMENU menu, int32_t id);
/* Nonzero on success. */
int32_t ZKAPI ZelMenuCheck(HMENU menu, int32_t selector);
int32_t ZKAPI ZelMenuUncheck(HMENU menu, int32_t selector);
int32_t ZKAPI ZelMenuEnable(HMENU menu, int32_t selector);
int32_t ZKAPI ZelMenuDisable(HMENU menu, int32_t selector);
/* 1 or 0. */
int32_t ZKAPI ZelMenuIsChecked(HMENU menu, int32_t selector);
int32_t ZKAPI ZelMenuIsEnabled(HMENU menu, int32_t selector);
/* The item's text as a host string; the empty string on failure. A "\t" in
 * a text becomes a tab: the part after it shows right-aligned. */
HostStr ZKAPI ZelMenuGetText(HWND window, HMENU menu, int32_t selector);
int32_t ZKAPI ZelMenuSetText(HWND window, HMENU menu, int32_t selector, const wchar_t *text);
/* The new item's id, or 0. */
int32_t ZKAPI ZelMenuInsert(HWND window, HMENU menu, int32_t position, const wchar_t *text, int16_t flags);
int32_t ZKAPI ZelMenuInsertFont(HWND window, HMENU menu, int32_t position, HFONT font, const wchar_t *text);
int32_t ZKAPI ZelMenuInsertPicture(HWND window, HMENU menu, int32_t position, ZelPicHandle picture,
                                   ZelPicHandle selectedPicture, const wchar_t *text);
/* 1, or 0. */
int32_t ZKAPI ZelMenuSetFont(HWND window, HMENU menu, int32_t selector, HFONT font, const wchar_t *text);
/* Nonzero on success. */
int32_t ZKAPI ZelMenuSetPicture(HWND window, HMENU menu, int32_t selector, ZelPicHandle picture,
                                ZelPicHandle selectedPicture, const wchar_t *text);
/* 1, or 0. */
int32_t ZKAPI ZelMenuDelete(HWND window, HMENU menu, int32_t selector);

#endif /* ZKLIB_MENU_H */
