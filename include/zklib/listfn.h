/* ZKLIB: general list functions. Included by zklib.h, inside its extern "C" block.
 *
 * They work on any list box or combo box of the host, adopted or not: the
 * list messages go by the control's type (LB_ on a list box, CB_ on a
 * combo box), and through the outline subclass when the control is adopted.
 * A window that is no list or combo box gives -87 unless stated. */
#ifndef ZKLIB_LISTFN_H
#define ZKLIB_LISTFN_H

/* ---- values beside rows --------------------------------------------------- */
/* Adds (inserts at `row`) a row and sets its value. The row; the negative
 * answer of the add as it came; -1 when the value could not be set. */
int32_t ZKAPI ZelListAddValue(HWND window, const wchar_t *text, int32_t value);
int32_t ZKAPI ZelListInsertValue(HWND window, int32_t row, const wchar_t *text, int32_t value);
/* The row's value (the list's answer, -1 past the end). */
int32_t ZKAPI ZelListGetValue(HWND window, int32_t row);
/* The list's answer to setting the value. */
int32_t ZKAPI ZelListSetValue(HWND window, int32_t row, int32_t value);

/* ---- searches --------------------------------------------------------------- */
/* The first row after `start` holding `value`, wrapping once past the end
 * (a row whose value is -1 sends the walk back to row 0 as well); -1 when
 * the walk comes back to `start` or passes the end a second time. */
int32_t ZKAPI ZelListFindValue(HWND window, int32_t start, int32_t value);
/* The first row after `start` whose whole text equals `text` without regard
 * to case; -1 if none. An adopted control does not wrap; a plain one searches
 * as LB_FINDSTRINGEXACT does. */
int32_t ZKAPI ZelListFindString(HWND window, int32_t start, const wchar_t *text);

/* ---- texts ------------------------------------------------------------------- */
/* The row's text of any length; the empty string on any failure. */
HostStr ZKAPI ZelListGetText(HWND window, int32_t row);
/* Changes the row's text, keeping its value, flags, pictures and tree place.
 * 0; -1 on failure. */
int32_t ZKAPI ZelListSetText(HWND window, int32_t row, const wchar_t *text);

/* ---- filling from host arrays ------------------------------------------------ */
/* Clears the list and adds one row per element of a string array (with its
 * value from a number array). The element count; the negative answer of a
 * failed add; -87 for arrays of differing sizes; -1 for a value that could
 * not be read or set. */
int32_t ZKAPI ZelListArrayPopulate(HWND window, HostArray strings);
int32_t ZKAPI ZelListArrayPopulateValue(HWND window, HostArray strings, HostArray numbers);

/* ---- selection, focus, drop-down ---------------------------------------------- */
/* Deletes the selected rows: the number deleted, 1 for the one row of a
 * single selection, or the list's negative answer (0 for a multiple-selection
 * list without a selection). */
int32_t ZKAPI ZelListDeleteSelected(HWND window);
/* Selects no row. 1. */
int32_t ZKAPI ZelListClearSelection(HWND window);
/* 1 for a list box with multiple or extended selection, else 0. */
int32_t ZKAPI ZelListIsMultiSelect(HWND window);
/* The caret row of a list box, the current row of a combo box. */
int32_t ZKAPI ZelListGetFocusIndex(HWND window);
/* Moves the caret (LBS_MULTIPLESEL) or the selection; the list's answer. */
int32_t ZKAPI ZelListSetFocusIndex(HWND window, int32_t row);
/* Whether the drop-down list shows; shows or hides it. The list's answer. */
int32_t ZKAPI ZelListGetDropdownState(HWND window);
int32_t ZKAPI ZelListSetDropdownState(HWND window, int32_t flag);

/* ---- scrolling and hit test ---------------------------------------------------- */
/* Makes `row` the top row: 1, 0 if refused. */
int32_t ZKAPI ZelListScroll(HWND window, int32_t row);
/* The row of a list box under a client point; -1 past the last row, outside
 * the window, or for a window that is no list box. */
int32_t ZKAPI ZelListGetIndexFromPoint(HWND window, int32_t x, int32_t y);

#endif /* ZKLIB_LISTFN_H */
