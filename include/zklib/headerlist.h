/* ZKLIB: the header list (host class cListView): its private message, the
 * codes its list sends, and the ZelLV exports. Included by zklib.h, inside
 * its extern "C" block. Masks, flags and states are those of the platform's
 * list view, passed through unchanged. */
#ifndef ZKLIB_HEADERLIST_H
#define ZKLIB_HEADERLIST_H

/* Posted to the list's owner after a header click has sorted the rows:
 * wParam 1 for descending, lParam the column. */
#define ZKM_ColumnSorted 0x600E

/* ZelLVSetSortOrder, ZelLVGetSortOrder. */
#define HDRLB_SortAscending 0
#define HDRLB_SortDescending 1

/* The wrapper the form's window holds (announced by ZKM_ControlCreate), and
 * the list inside it that ZelLVGetListView hands out for all other exports. */
typedef INT_PTR ZelLVWrapper;
typedef INT_PTR ZelLVControl;

ZelLVControl ZKAPI ZelLVGetListView(ZelLVWrapper wrapper);

/* Colours of the view (not of the block). */
int32_t ZKAPI ZelLVGetBkColor(ZelLVControl list);
int32_t ZKAPI ZelLVSetBkColor(ZelLVControl list, COLORREF color);
int32_t ZKAPI ZelLVGetTextColor(ZelLVControl list);
int32_t ZKAPI ZelLVSetTextColor(ZelLVControl list, COLORREF color);
int32_t ZKAPI ZelLVGetTextBkColor(ZelLVControl list);
int32_t ZKAPI ZelLVSetTextBkColor(ZelLVControl list, COLORREF color);

/* Places, geometry and scrolling. */
int32_t ZKAPI ZelLVGetItemCount(ZelLVControl list);
int32_t ZKAPI ZelLVGetNextItem(ZelLVControl list, int32_t start, uint16_t flags);
int32_t ZKAPI ZelLVGetItemRect(ZelLVControl list, int32_t index, RECT *rect, int32_t code);
int32_t ZKAPI ZelLVSetItemPosition(ZelLVControl list, int32_t index, int32_t x, int32_t y);
int32_t ZKAPI ZelLVGetItemPosition(ZelLVControl list, int32_t index, POINT *point);
int32_t ZKAPI ZelLVGetStringWidth(ZelLVControl list, const wchar_t *text);
int32_t ZKAPI ZelLVGetViewRect(ZelLVControl list, RECT *rect);
int32_t ZKAPI ZelLVGetTopIndex(ZelLVControl list);
int32_t ZKAPI ZelLVGetCountPerPage(ZelLVControl list);
int32_t ZKAPI ZelLVGetOrigin(ZelLVControl list, POINT *point);
int32_t ZKAPI ZelLVFindItem(ZelLVControl list, uint32_t flags, const wchar_t *text, int32_t start);
int32_t ZKAPI ZelLVHitTest(ZelLVControl list, int32_t x, int32_t y, uint32_t *flags);
int32_t ZKAPI ZelLVEnsureVisible(ZelLVControl list, int32_t index, uint16_t partial);
int32_t ZKAPI ZelLVScroll(ZelLVControl list, int32_t dx, int32_t dy);
int32_t ZKAPI ZelLVArrange(ZelLVControl list, int32_t code);
int32_t ZKAPI ZelLVGetStyle(ZelLVControl list);
int32_t ZKAPI ZelLVSetStyle(ZelLVControl list, int32_t bits, int32_t on);

/* Columns. */
int32_t ZKAPI ZelLVGetColumn(ZelLVControl list, int32_t column, HostStr *text, int32_t *format, int32_t *width);
int32_t ZKAPI ZelLVSetColumn(ZelLVControl list, int32_t column, uint32_t mask, const wchar_t *text, int32_t format,
                             int32_t width);
int32_t ZKAPI ZelLVColumnsAssign(ZelLVControl list, HostArray texts, HostArray formats, HostArray widths,
                                 int32_t count);

/* Rows. */
int32_t ZKAPI ZelLVGetItemState(ZelLVControl list, int32_t index, uint32_t mask);
int32_t ZKAPI ZelLVSetItemState(ZelLVControl list, int32_t index, uint32_t state, uint32_t mask);
int32_t ZKAPI ZelLVGetItem(ZelLVControl list, int32_t index, int32_t column, HostStr *text, uint32_t *itemData,
                           int32_t *image);
int32_t ZKAPI ZelLVSetItem(ZelLVControl list, int32_t index, int32_t column, uint32_t mask, const wchar_t *text,
                           uint32_t itemData, int32_t image);
int32_t ZKAPI ZelLVGetSelectedCount(ZelLVControl list);
int32_t ZKAPI ZelLVInsertItem(ZelLVControl list, int32_t index, const wchar_t *text, uint32_t itemData, int32_t image);
int32_t ZKAPI ZelLVDeleteItem(ZelLVControl list, int32_t index);
int32_t ZKAPI ZelLVDeleteAllItems(ZelLVControl list);

/* Sorting. */
int32_t ZKAPI ZelLVGetSortColumn(ZelLVControl list);
int32_t ZKAPI ZelLVSetSortColumn(ZelLVControl list, int32_t column);
int32_t ZKAPI ZelLVGetSortOrder(ZelLVControl list);
int32_t ZKAPI ZelLVSetSortOrder(ZelLVControl list, int32_t order);
int32_t ZKAPI ZelLVSortItems(ZelLVControl list);

/* Images: a large and a small picture (ZelPicLoad) at the same index. */
int32_t ZKAPI ZelLVImageAdd(ZelLVControl list, INT_PTR large, INT_PTR small);
int32_t ZKAPI ZelLVImageCountGet(ZelLVControl list);
int32_t ZKAPI ZelLVImageRemove(ZelLVControl list, int32_t index);
int32_t ZKAPI ZelLVImageRemoveAll(ZelLVControl list);
int32_t ZKAPI ZelLVImageReplace(ZelLVControl list, int32_t index, INT_PTR large, INT_PTR small);

#endif /* ZKLIB_HEADERLIST_H */
