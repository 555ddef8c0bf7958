/* ZKLIB: outline tree operations and drag and drop. Included by zklib.h, inside its extern "C" block.
 *
 * Exports on rows take the list window first and test adoption; exports on
 * item handles take the LbxNode handle first: a null, stale, freed or forged
 * handle gives the failure value named beside each. */
#ifndef ZKLIB_OUTLINE_TREE_H
#define ZKLIB_OUTLINE_TREE_H

/* Special levels of ZelListShowOutline. */
#define LBX_ShowAllButHidden 32766 /* every node except those marked hidden */
#define LBX_ShowEverything 32767   /* every node; any level above all levels acts so */

/* Shell folder values of ZelListLoadChild: the text comes from the shell's own name. */
#define LBX_ShellMyComputer (-2)
#define LBX_ShellNetwork (-3)
#define LBX_ShellMyDocuments (-4)
#define LBX_ShellRecycleBin (-5)
#define LBX_ShellInternet (-6)

/* Mode bits of ZelListDragDrop. */
#define LBX_DropAsChild 0x0001   /* the dragged node becomes the target's last child */
#define LBX_DropAsSibling 0x0002 /* the dragged node follows the target */

/* ---- on rows ---------------------------------------------------------------------- */
/* Rows counted below the node (row -1: the root); 0 on failure or no children. */
int32_t ZKAPI ZelListExpand(HWND window, int32_t row);
/* 1, 0 on failure. */
int32_t ZKAPI ZelListExpandDescendents(HWND window, int32_t row);
int32_t ZKAPI ZelListCollapse(HWND window, int32_t row);
/* The result of the row removal, -1 on failure. */
int32_t ZKAPI ZelListDeleteChild(HWND window, int32_t row);
/* The result of the last row removal, 0 if none, -1 on failure. */
int32_t ZKAPI ZelListDeleteDescendents(HWND window, int32_t row);
/* 1, 0 on failure. The pictures go to the node's new parent (demote) or
 * former parent when it is left childless (promote). */
int32_t ZKAPI ZelListDemote(HWND window, int32_t row, ZelPicHandle normal, ZelPicHandle selected);
int32_t ZKAPI ZelListPromote(HWND window, int32_t row, ZelPicHandle normal, ZelPicHandle selected);
int32_t ZKAPI ZelListMoveUp(HWND window, int32_t row);
int32_t ZKAPI ZelListMoveDown(HWND window, int32_t row);
/* The process-wide switch LbxOutlineRedraw. 1; 0 if the window is not adopted. */
int32_t ZKAPI ZelListSetOutlineRedraw(HWND window, int32_t redraw);
/* Rebuilds the rows from the tree down to `level`. 1, 0 on failure. */
int32_t ZKAPI ZelListShowOutline(HWND window, int32_t level);
/* A new last child or next sibling without a row: its handle, 0 on failure. */
ZelItemHandle ZKAPI ZelListLoadChild(HWND window, ZelItemHandle parent, ZelPicHandle normal, ZelPicHandle selected,
                                     const wchar_t *text, int32_t value, uint32_t flags);
ZelItemHandle ZKAPI ZelListLoadSibling(HWND window, ZelItemHandle sibling, ZelPicHandle normal, ZelPicHandle selected,
                                       const wchar_t *text, int32_t value, uint32_t flags);
/* Count loaded; -87 arrays of different lengths; -8 a load failed. */
int32_t ZKAPI ZelListLoadChildren(HWND window, ZelItemHandle parent, ZelPicHandle normal, ZelPicHandle selected,
                                  HostArray texts, HostArray values, HostArray flags);
/* Text, value and flags of an item: the result of ZelListSetItemText, 0 on failure. */
ZelItemHandle ZKAPI ZelListSetItemData(HWND window, ZelItemHandle item, const wchar_t *text, int32_t value,
                                       uint32_t flags);
/* Rows in view of a list box: the count, with the first and last row; -87 for no list box. */
int32_t ZKAPI ZelListGetVisibleRange(HWND window, int32_t *first, int32_t *last);

/* ---- on item handles ------------------------------------------------------------------ */
ZelItemHandle ZKAPI ZelListGetParent(ZelItemHandle item);      /* 0 on failure */
ZelItemHandle ZKAPI ZelListGetNextSibling(ZelItemHandle item); /* 0 on failure */
ZelItemHandle ZKAPI ZelListGetPrevSibling(ZelItemHandle item); /* 0 on failure */
int32_t ZKAPI ZelListGetLevel(ZelItemHandle item);             /* -1 on failure */
int32_t ZKAPI ZelListGetItemColor(ZelItemHandle item);         /* -1 on failure */
INT_PTR ZKAPI ZelListGetItemFont(ZelItemHandle item);          /* -1 on failure */
uint32_t ZKAPI ZelListGetItemFlags(ZelItemHandle item);        /* 0 on failure */
int32_t ZKAPI ZelListGetItemValue(ZelItemHandle item);         /* 0 on failure */
HostStr ZKAPI ZelListGetItemText(ZelItemHandle item);          /* empty string on failure */
/* 1, 0 on failure. The text is a new string the caller owns. */
int32_t ZKAPI ZelListGetItemData(ZelItemHandle item, HostStr *text, int32_t *value, uint32_t *flags);
int32_t ZKAPI ZelListGetItemPicture(ZelItemHandle item, ZelPicHandle *normal, ZelPicHandle *selected);
/* The item's row, -1 on failure; on a combo box the current selection. */
int32_t ZKAPI ZelListGetItemIndex(ZelItemHandle item);
/* 1, 0 on failure (ZelListSetItemText: the handle). */
int32_t ZKAPI ZelListSetItemColor(ZelItemHandle item, COLORREF color);
int32_t ZKAPI ZelListSetItemFont(ZelItemHandle item, HFONT font);
int32_t ZKAPI ZelListSetItemPicture(ZelItemHandle item, ZelPicHandle normal, ZelPicHandle selected);
ZelItemHandle ZKAPI ZelListSetItemText(ZelItemHandle item, const wchar_t *text);
int32_t ZKAPI ZelListSetItemValue(ZelItemHandle item, int32_t value);
int32_t ZKAPI ZelListSetItemFlags(ZelItemHandle item, uint32_t mask, int32_t set);
/* Tree and memory only, never rows. 1, 0 on failure. */
int32_t ZKAPI ZelListFreeChild(ZelItemHandle item);
int32_t ZKAPI ZelListFreeDescendents(ZelItemHandle item);
/* The first node from the item down whose value matches; 0 if none. */
ZelItemHandle ZKAPI ZelListFindItemValue(ZelItemHandle item, int32_t value);
/* Handles as numbers at 0..n-1 of a number array: the count, 0 on failure. */
int32_t ZKAPI ZelListEnumChildren(ZelItemHandle item, HostArray handles);
int32_t ZKAPI ZelListEnumDescendents(ZelItemHandle item, HostArray handles);

/* ---- drag and drop -------------------------------------------------------------------- */
/* Moves the node of a row with its subtree to a place at a row of the same
 * or a sibling list box. 1, 0 on failure. */
int32_t ZKAPI ZelListDragDrop(HWND source, int32_t sourceRow, HWND target, int32_t targetRow, uint16_t mode);

#endif /* ZKLIB_OUTLINE_TREE_H */
