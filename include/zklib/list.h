/* ZKLIB: the outline engine on list and combo boxes: styles, item flags, messages and list exports. Included by
 * zklib.h, inside its extern "C" block.
 *
 * The constants are plain macros with no platform type, so the portable core
 * includes this file too; the export declarations are read only when it comes
 * in through zklib.h. */
#ifndef ZKLIB_LIST_CONSTANTS_H
#define ZKLIB_LIST_CONSTANTS_H

/* ---- list style bits (ZelListSetStyle, ZelListGetStyle) ------------------- */
#define LBX_StyleOwnerDraw 0x00000001u
#define LBX_StyleUpperCase 0x00000002u
#define LBX_StyleLowerCase 0x00000004u
#define LBX_StyleKeepTextColor 0x00000008u
#define LBX_StyleTextSelect 0x00000010u
#define LBX_StylePictureAbove 0x00000020u
#define LBX_StyleNoLines 0x00000040u
#define LBX_StyleNoEditCopy 0x00000100u
#define LBX_StyleDropSelection 0x00000200u
#define LBX_StyleShowInactive 0x00000400u
#define LBX_StyleMultiSelect 0x00000800u
#define LBX_StyleAutoExtent 0x00001000u
#define LBX_StyleNoHighlight 0x00002000u
#define LBX_StyleIndentSelect 0x00004000u
#define LBX_StyleItemColorBack 0x00008000u
#define LBX_StyleWideExtent 0x00010000u
#define LBX_StyleOutline 0x00020000u
#define LBX_StyleProperCase 0x00040000u
#define LBX_StyleExtendedSelect 0x01000000u
#define LBX_StyleKeepScrollBar 0x02000000u
#define LBX_StyleExactHeight 0x04000000u
#define LBX_StyleExtendedUI 0x08000000u

/* ---- item flag bits (bits 0 to 15 belong to the application) -------------- */
#define LBX_ItemLeftLine 0x00010000u
#define LBX_ItemPrevA 0x00020000u
#define LBX_ItemPrevB 0x00040000u
#define LBX_ItemHasNext 0x00080000u
#define LBX_ItemPlus 0x00100000u
#define LBX_ItemMinus 0x00200000u
#define LBX_ItemDisabled 0x01000000u
#define LBX_ItemHidden 0x02000000u
#define LBX_ItemSelected 0x04000000u
#define LBX_ItemFocusMark 0x08000000u
#define LBX_ItemInactive 0x10000000u
#define LBX_ItemDeleted 0x20000000u
#define LBX_ItemHasChildren 0x40000000u
#define LBX_ItemExpanded 0x80000000u

/* ---- private messages of adopted lists ------------------------------------ */
#define ZKM_LbxAddRow 0x6001
#define ZKM_LbxInsertRow 0x6002
#define ZKM_LbxSelectDone 0x6003
#define ZKM_LbxParentGone 0x6004
#define ZKM_LbxToggle 0x6009
#define ZKM_LbxUserRecord 0x600B
#define ZKM_LbxGetText 0x600C
#define ZKM_LbxProbe 0x600D

/* Special row index of ZelListGetItemHandle: the outline root. */
#define LBX_RootRow (-1)

#endif /* ZKLIB_LIST_CONSTANTS_H */

#if defined(ZKLIB_H) && !defined(ZKLIB_LIST_H)
#define ZKLIB_LIST_H

/* An item handle is an outline node's address; a picture handle a picture's.
 * Both are pointer-sized, and 0 is never a valid handle. */
typedef INT_PTR ZelItemHandle;
typedef INT_PTR ZelPicHandle;

/* ---- adoption and the item model ------------------------------------------ */
int32_t ZKAPI ZelListSetStyle(HWND window, uint32_t style, CREATESTRUCTW *create);
uint32_t ZKAPI ZelListGetStyle(HWND window);
int32_t ZKAPI ZelListGetFlags(HWND window, int32_t row);
int32_t ZKAPI ZelListSetFlags(HWND window, int32_t row, uint32_t mask, int32_t set);
ZelItemHandle ZKAPI ZelListGetRoot(HWND window);
ZelItemHandle ZKAPI ZelListGetItemHandle(HWND window, int32_t row);

/* ---- rows with colour, picture, font; enable and disable ------------------ */
int32_t ZKAPI ZelListAddColor(HWND window, const wchar_t *text, COLORREF color);
int32_t ZKAPI ZelListAddColorValue(HWND window, const wchar_t *text, COLORREF color, int32_t value);
int32_t ZKAPI ZelListInsertColor(HWND window, int32_t row, const wchar_t *text, COLORREF color);
int32_t ZKAPI ZelListInsertColorValue(HWND window, int32_t row, const wchar_t *text, COLORREF color, int32_t value);
int32_t ZKAPI ZelListGetColor(HWND window, int32_t row);
int32_t ZKAPI ZelListSetColor(HWND window, int32_t row, COLORREF color);
int32_t ZKAPI ZelListAddPicture(HWND window, const wchar_t *text, ZelPicHandle normal, ZelPicHandle selected);
int32_t ZKAPI ZelListAddPictureValue(HWND window, const wchar_t *text, ZelPicHandle normal, ZelPicHandle selected,
                                     int32_t value);
int32_t ZKAPI ZelListInsertPicture(HWND window, int32_t row, const wchar_t *text, ZelPicHandle normal,
                                   ZelPicHandle selected);
int32_t ZKAPI ZelListInsertPictureValue(HWND window, int32_t row, const wchar_t *text, ZelPicHandle normal,
                                        ZelPicHandle selected, int32_t value);
int32_t ZKAPI ZelListGetPicture(HWND window, int32_t row, ZelPicHandle *normal, ZelPicHandle *selected);
int32_t ZKAPI ZelListSetPicture(HWND window, int32_t row, ZelPicHandle normal, ZelPicHandle selected);
int32_t ZKAPI ZelListAddFont(HWND window, const wchar_t *text, HFONT font);
int32_t ZKAPI ZelListAddFontValue(HWND window, const wchar_t *text, HFONT font, int32_t value);
int32_t ZKAPI ZelListInsertFont(HWND window, int32_t row, const wchar_t *text, HFONT font);
int32_t ZKAPI ZelListInsertFontValue(HWND window, int32_t row, const wchar_t *text, HFONT font, int32_t value);
INT_PTR ZKAPI ZelListGetFont(HWND window, int32_t row);
int32_t ZKAPI ZelListSetFont(HWND window, int32_t row, HFONT font);
int32_t ZKAPI ZelListDisableItem(HWND window, int32_t row, COLORREF color);
int32_t ZKAPI ZelListEnableItem(HWND window, int32_t row, COLORREF color);

#endif /* ZKLIB_LIST_H */
