/* ZKLIB: the small controls: the splitter, the spin field and the meter.
 * Included by zklib.h, inside its extern "C" block.
 *
 * The constants are plain macros with no platform type, so the portable core
 * includes this file too; the export declarations are read only when it comes
 * in through zklib.h. */
#ifndef ZKLIB_CONTROLS_CONSTANTS_H
#define ZKLIB_CONTROLS_CONSTANTS_H

/* ---- the splitter ------------------------------------------------------------ */
/* No arguments: the splitter finds its two children anew. */
#define ZKM_Refresh 0x600A

/* ---- the spin field, steered by messages -------------------------------------- */
#define ZKM_SpinSetMin 0x401   /* lParam the minimum; empties the edit */
#define ZKM_SpinSetMax 0x402   /* lParam the maximum; empties the edit */
#define ZKM_SpinSetStep 0x403  /* wParam the decimal adjust, lParam the increment (0 changes nothing) */
#define ZKM_SpinSetValue 0x404 /* lParam the value, scaled; shown at once */
#define ZKM_SpinUp 0x405       /* one step up */
#define ZKM_SpinDown 0x406     /* one step down */
#define ZKM_SpinGetText 0x407  /* answers the text as a host string */

#endif /* ZKLIB_CONTROLS_CONSTANTS_H */

#if defined(ZKLIB_H) && !defined(ZKLIB_CONTROLS_H)
#define ZKLIB_CONTROLS_H

/* A splitter: the pointer that ZKM_ControlCreate handed over. */
typedef INT_PTR ZelSplitControl;

/* 0 a horizontal bar, 1 a vertical one; -1 on failure. */
int32_t ZKAPI ZelSplitGetOrientation(ZelSplitControl control);
/* Moves the bar to where a drag has taken it (or where it is); the position
 * on its axis in parent coordinates, -1 on failure. */
int32_t ZKAPI ZelSplitMoveToDragPos(ZelSplitControl control);
/* Tiles the bar to its parent and places both children beside it. */
void ZKAPI ZelSplitResizeObjects(ZelSplitControl control);
/* which 1 sets the left or upper child, any other value the right or lower
 * one; the child held before, 0 on failure (and for window 0). */
HWND ZKAPI ZelSplitSetChild(ZelSplitControl control, int32_t which, HWND window);
/* 1, or 0 on failure. */
int32_t ZKAPI ZelSplitTileToParent(ZelSplitControl control);

/* A meter's percentage, 0 to 100: 0, or -87 above 100 (nothing changes). */
int32_t ZKAPI ZelWinSetMeter(HWND window, uint32_t percent);

#endif /* ZKLIB_CONTROLS_H */
