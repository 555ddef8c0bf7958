/* ZKLIB: the colour palette control: style bits, zones, colour roles,
 * notification codes, its command message and the ZelPal exports. Included
 * by zklib.h, inside its extern "C" block.
 *
 * The constants are plain macros with no platform type, so the portable core
 * includes this file too; the export declarations are read only when it comes
 * in through zklib.h. */
#ifndef ZKLIB_PALETTE_CONSTANTS_H
#define ZKLIB_PALETTE_CONSTANTS_H

/* ---- style bits (ZelPalStyleGet, ZelPalStyleSet) --------------------------- */
#define PALS_AutoSize 0x0001      /* the window fits its zones */
#define PALS_DropDown 0x0002      /* the pop-up of a drop-down */
#define PALS_EnableRecent 0x0004  /* recent colours and the other-colour entry */
#define PALS_KeepSelection 0x0008 /* the focus frame stays without the focus */

/* ---- zones of a cell (ZelPalFocusGet, ZelPalFocusSet, HostMsgSelect) -------- */
#define PALZ_Main 0   /* the main colours */
#define PALZ_Menu 1   /* the menu lines: the application's, then "Other Color..." */
#define PALZ_Recent 2 /* the recent colours, newest first */

/* ---- palettes of ZelPalColorPaletteGet and ZelPalColorPaletteGetAll --------- */
#define PALP_Main 0
#define PALP_Recent 1

/* ---- colour roles (ZelPalColorGet, ZelPalColorSet) ------------------------- */
#define PALR_GridBack 0         /* main and recent zones; follows role 1 */
#define PALR_Background 1       /* the control; taken from the notify window at each paint */
#define PALR_MenuBack 2         /* menu zone and its text; follows role 1 */
#define PALR_OuterBottomRight 3 /* outer bevel, bottom and right edges */
#define PALR_OuterTopLeft 4     /* outer bevel, top and left edges */
#define PALR_InnerTopLeft 5     /* inner bevel, top and left edges */
#define PALR_InnerBottomRight 6 /* inner bevel, bottom and right edges; follows role 1 */
#define PALR_DisabledText 7     /* menu text and outline when disabled */
#define PALR_Text 8             /* menu text and outline; taken from the notify window at each paint */
#define PALR_FocusInner 9       /* inner line of the focus frame */
#define PALR_FocusOuter 10      /* outer two lines of the focus frame */
#define PALR_Frame 11           /* prepared for painting, used by no edge */
#define PALR_Count 12

/* ---- notification codes (high word of WM_COMMAND's wParam) ----------------- */
#define PALN_FocusChange 1 /* the focus cell changed */
#define PALN_KillFocus 2   /* the control lost the focus */
#define PALN_CloseUp 8     /* the pop-up wants to close */

/* A menu entry was chosen: wParam the palette's window, lParam the entry's
 * id; id 0 is "Other Color...", which the palette answers itself. */
#define ZKM_PaletteCommand 0x6007

#endif /* ZKLIB_PALETTE_CONSTANTS_H */

#if defined(ZKLIB_H) && !defined(ZKLIB_PALETTE_H)
#define ZKLIB_PALETTE_H

/* A palette control: the pointer that ZKM_ControlCreate handed over. */
typedef INT_PTR ZelPalControl;

/* Colours: roles, the main colours, the two palettes. */
int32_t ZKAPI ZelPalColorGet(ZelPalControl control, int32_t role);
int32_t ZKAPI ZelPalColorSet(ZelPalControl control, int32_t role, COLORREF color);
int32_t ZKAPI ZelPalColorMainSet(ZelPalControl control, int32_t index, COLORREF color);
int32_t ZKAPI ZelPalColorMainSetAll(ZelPalControl control, HostArray colors);
int32_t ZKAPI ZelPalColorPaletteGet(ZelPalControl control, int32_t palette, int32_t index);
int32_t ZKAPI ZelPalColorPaletteGetAll(ZelPalControl control, int32_t palette, HostArray colors);

/* The focus cell. */
int32_t ZKAPI ZelPalFocusGet(ZelPalControl control, int32_t *zone, int32_t *index);
int32_t ZKAPI ZelPalFocusSet(ZelPalControl control, int32_t zone, int32_t index);

/* The application's menu entries. */
int32_t ZKAPI ZelPalMenuAdd(ZelPalControl control, const wchar_t *text, uint16_t id);
int32_t ZKAPI ZelPalMenuClear(ZelPalControl control);
int32_t ZKAPI ZelPalMenuGet(ZelPalControl control, int32_t index, HostStr *text, uint16_t *id);
int32_t ZKAPI ZelPalMenuGetAll(ZelPalControl control, HostArray texts, HostArray ids);
int32_t ZKAPI ZelPalMenuInsert(ZelPalControl control, int32_t index, const wchar_t *text, uint16_t id);
int32_t ZKAPI ZelPalMenuRemove(ZelPalControl control, int32_t index);
int32_t ZKAPI ZelPalMenuSet(ZelPalControl control, int32_t index, const wchar_t *text, uint16_t id);
int32_t ZKAPI ZelPalMenuSetAll(ZelPalControl control, HostArray texts, HostArray ids);

/* Recent colours and style bits. */
int32_t ZKAPI ZelPalMRUClear(ZelPalControl control);
int32_t ZKAPI ZelPalMRUMaxGet(ZelPalControl control);
int32_t ZKAPI ZelPalMRUMaxSet(ZelPalControl control, int32_t maximum);
int32_t ZKAPI ZelPalStyleGet(ZelPalControl control);
int32_t ZKAPI ZelPalStyleSet(ZelPalControl control, int32_t mask, int32_t value);

#endif /* ZKLIB_PALETTE_H */
