/* ZKLIB: window utilities and field flags, accelerators, the message box and
 * the wait cursor. Included by zklib.h, inside its extern "C" block.
 *
 * The constants are plain macros with no platform type, so the portable core
 * includes this file too; the export declarations are read only when it comes
 * in through zklib.h. */
#ifndef ZKLIB_WINDOW_CONSTANTS_H
#define ZKLIB_WINDOW_CONSTANTS_H

/* ---- field flags (ZelWinGetFlags, ZelWinSetFlags) ------------------------- */
#define WF_Required 0x00000001       /* the field must not be null */
#define WF_NoClear 0x00000002        /* ZelWinClearAllFields leaves it alone */
#define WF_NoClearEdit 0x00000004    /* on a form: ZelWinClearAllEditFlags does nothing */
#define WF_ShortenPath 0x00000008    /* a path set as the window's text is shortened to fit */
#define WF_ReadOnly 0x00000010       /* the field takes no input */
#define WF_RequiredButton 0x00010000 /* enabled only while every required field is filled */

/* ---- accelerator modifiers (ZelWinLoadAccelerator): the sum of these, 0 to 7;
 * the keys held must agree exactly, and any other value never matches. */
#define ACCEL_Shift 1
#define ACCEL_Control 2
#define ACCEL_Alt 4

/* ---- icon selector of ZelMessageBox: a picture handle of an icon, or one of
 * these (the first set wins, in this order); 0 shows no icon. */
#define MSGBOX_IconAsterisk 0x00010000
#define MSGBOX_IconHand 0x00020000
#define MSGBOX_IconQuestion 0x00040000
#define MSGBOX_IconExclamation 0x00080000

/* ---- modes of ZelWaitCursor ---------------------------------------------- */
#define WAIT_HostOff 0    /* counted: the host's wait cursor off at depth 0 */
#define WAIT_HostOn 1     /* counted: the host's wait cursor on from depth 0 */
#define WAIT_PlainOn 2    /* the wait cursor now, the old one saved; not counted */
#define WAIT_PlainOff 3   /* the saved cursor back; not counted */
#define WAIT_CaptureOn 4  /* counted: the mouse captured by a hidden window, and the wait cursor */
#define WAIT_CaptureOff 5 /* counted: the saved cursor back and the capture released at depth 0 */

#endif /* ZKLIB_WINDOW_CONSTANTS_H */

#if defined(ZKLIB_H) && !defined(ZKLIB_WINDOW_H)
#define ZKLIB_WINDOW_H

/* An accelerator: the handle of its record. A message-box button: its object. */
typedef INT_PTR ZelAccelHandle;
typedef INT_PTR ZelMsgButton;

/* ---- field flags and form-wide operations --------------------------------
 * A window of host type 1 (a form) is shown in its parent, its frame: the
 * text, state and move functions act on that frame. */

/* The field's flags, or 0. */
int32_t ZKAPI ZelWinGetFlags(HWND window);
/* Sets (set nonzero) or clears flag bits; 1, or 0 on failure. */
int32_t ZKAPI ZelWinSetFlags(HWND window, uint32_t flags, int32_t set);
/* The first required field of the form (in Z order, frames searched) that is
 * null, or 0. */
HWND ZKAPI ZelWinIsRequiredFieldNull(HWND form);
/* Empties every field of the form by its type; the count, or -87. */
int32_t ZKAPI ZelWinClearAllFields(HWND form);
/* Clears the edited flag of every data field; the count, or -87. */
int32_t ZKAPI ZelWinClearAllEditFlags(HWND form);
/* The child of a type in the mask whose text, without its first "&", equals
 * `text` regardless of case; or 0. */
HWND ZKAPI ZelWinGetHandle(HWND form, const wchar_t *text, uint32_t typeMask);

/* ---- plain window functions ---------------------------------------------- */
int32_t ZKAPI ZelWinGetStyle(HWND window);                             /* GWL_STYLE, or -1 */
int32_t ZKAPI ZelWinSetStyle(HWND window, uint32_t bits, int32_t set); /* nonzero on success */
HostStr ZKAPI ZelWinGetText(HWND window);                              /* the empty string for no window */
int32_t ZKAPI ZelWinIsChild(HWND parent, HWND window);
int32_t ZKAPI ZelWinIsMaximized(HWND window);
int32_t ZKAPI ZelWinIsMinimized(HWND window);
int32_t ZKAPI ZelWinIsRestored(HWND window);
int32_t ZKAPI ZelWinIsWindow(HWND window);
int32_t ZKAPI ZelWinMove(HWND window, int32_t x, int32_t y, int32_t width, int32_t height);
/* Selects characters of a data field or combo box; 1, or 0 for another type. */
int32_t ZKAPI ZelWinSetSelect(HWND window, uint16_t start, uint16_t end);
/* Moves the window behind `after` in the tab order; with after 0 it leaves
 * the tab order. Nonzero on success. */
int32_t ZKAPI ZelWinSetTabOrder(HWND window, HWND after);
/* Shows a window, a form or a table through what frames it; nonzero if it
 * was visible. */
int32_t ZKAPI ZelWinShow(HWND window, int32_t command);

/* ---- window properties ----------------------------------------------------
 * Names into a string array and values into a number array, bounds 0 to
 * count - 1; the count. Not reentrant. */
int32_t ZKAPI ZelWinEnumProps(HWND window, HostArray names, HostArray values);
INT_PTR ZKAPI ZelWinGetProp(HWND window, const wchar_t *name);
int32_t ZKAPI ZelWinSetProp(HWND window, const wchar_t *name, uint16_t value);
/* 1 if a property with a value other than 0 was removed. */
int32_t ZKAPI ZelWinRemoveProp(HWND window, const wchar_t *name);

/* ---- accelerators ----------------------------------------------------------
 * While `window`, or a window holding it, is in the foreground, the key with
 * exactly these modifiers held is swallowed, and on its release `message`
 * is sent to the window with `value` in lParam. Where several accelerators
 * share key and modifiers, the first loaded decides. */
ZelAccelHandle ZKAPI ZelWinLoadAccelerator(HWND window, uint32_t message, uint32_t modifiers, uint16_t key,
                                           uint32_t value);
int32_t ZKAPI ZelWinFreeAccelerator(ZelAccelHandle accelerator); /* 1, or 0 */
/* The thread keyboard hook, installed with the first accelerator and removed
 * with the last. */
LRESULT ZKAPI KeyboardHookProc(int code, WPARAM key, LPARAM data);

/* ---- message box -----------------------------------------------------------
 * A button is made once and used in any number of boxes. In the array of
 * ZelMessageBox (host numbers), a handle plus 1 is the default button, and
 * 0 or 1 leaves its place in the row blank. */
ZelMsgButton ZKAPI ZelMessageLoadButton(const wchar_t *text, uint32_t result); /* 0 on failure */
int32_t ZKAPI ZelMessageFreeButton(ZelMsgButton button);                       /* 1, or 0 */
/* The result of the button pressed, or 0. A single button, or one whose
 * result is 2, is pressed by Esc as well. */
int32_t ZKAPI ZelMessageBox(const wchar_t *text, const wchar_t *caption, INT_PTR icon, HostArray buttons,
                            int32_t count);
/* The background colour of every box from now on; 1. */
int32_t ZKAPI ZelMessageSetBkgdColor(COLORREF colour);

/* ---- wait cursor: one of the WAIT_* modes. Gives the nesting depth after
 * the call, which the counted modes share. */
int32_t ZKAPI ZelWaitCursor(int32_t mode);

#endif /* ZKLIB_WINDOW_H */
