/* ZKLIB: painting of outline rows: indent, horizontal extent, text rectangle.
 * Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_LISTPAINT_H
#define ZKLIB_LISTPAINT_H

/* Indent step of an adopted list in half average character widths. 1, 0 if
 * the window is not adopted. Nothing is repainted. */
int32_t ZKAPI ZelListSetIndent(HWND window, int32_t indent);
/* Grows the horizontal extent of a list box to its widest row (row < 0: all
 * rows). 0 done; -87 bad window; -8 no resources; -1 a text could not be read. */
int32_t ZKAPI ZelListSetScrollWidth(HWND window, int32_t row);
/* The text rectangle of a row of an adopted list box; 1, 0 on failure. */
int32_t ZKAPI ZelListGetTextRectangle(HWND window, int32_t row, int32_t *top, int32_t *left, int32_t *bottom,
                                      int32_t *right);

#endif
