// Every export with a null pointer: the box of string 48 naming the
// function, the failure value, and the function's own words in the
// debugger output.
#include <functional>

#include "hdr_support.h"

namespace {

using Row = zkt::NullControlCall;

std::vector<Row> Rows() {
    const ZelLVControl n = 0;
    static RECT r;
    static POINT p;
    static HostStr s;
    static int32_t i;
    static uint32_t u;
    return {
        {L"ZelLVGetListView()", 0, L"Unable to retrieve child ListView pointer.", [] { return ZelLVGetListView(0); }},
        {L"ZelLVGetBkColor()", -1, L"Unable to retrieve background color.", [=] { return ZelLVGetBkColor(n); }},
        {L"ZelLVSetBkColor()", 0, L"Unable to assign background color.", [=] { return ZelLVSetBkColor(n, 0); }},
        {L"ZelLVGetItemCount()", 0, L"Unable to retrieve item count.", [=] { return ZelLVGetItemCount(n); }},
        {L"ZelLVGetNextItem()", -1, L"Unable to retrieve next item.", [=] { return ZelLVGetNextItem(n, -1, 0); }},
        {L"ZelLVGetItemRect()", 0, L"Unable to retrieve item rectangle.",
         [=] { return ZelLVGetItemRect(n, 0, &r, 0); }},
        {L"ZelLVSetItemPosition()", 0, L"Unable to assign item position.",
         [=] { return ZelLVSetItemPosition(n, 0, 1, 1); }},
        {L"ZelLVGetItemPosition()", 0, L"Unable to retrieve item position.",
         [=] { return ZelLVGetItemPosition(n, 0, &p); }},
        {L"ZelLVGetStringWidth()", 0, L"Unable to retrieve string width.",
         [=] { return ZelLVGetStringWidth(n, L"x"); }},
        {L"ZelLVGetColumn()", 0, L"Unable to retrieve column.", [=] { return ZelLVGetColumn(n, 0, &s, &i, &i); }},
        {L"ZelLVSetColumn()", 0, L"Unable to assign column.", [=] { return ZelLVSetColumn(n, 0, 7, L"x", 0, 9); }},
        {L"ZelLVGetViewRect()", 0, L"Unable to retrieve view rectangle.", [=] { return ZelLVGetViewRect(n, &r); }},
        {L"ZelLVGetTextColor()", -1, L"Unable to retrieve text color.", [=] { return ZelLVGetTextColor(n); }},
        {L"ZelLVSetTextColor()", 0, L"Unable to assign text color.", [=] { return ZelLVSetTextColor(n, 0); }},
        {L"ZelLVGetTextBkColor()", -1, L"Unable to retrieve text background color.",
         [=] { return ZelLVGetTextBkColor(n); }},
        {L"ZelLVSetTextBkColor()", 0, L"Unable to assign text background color.",
         [=] { return ZelLVSetTextBkColor(n, 0); }},
        {L"ZelLVGetTopIndex()", -1, L"Unable to retrieve top index.", [=] { return ZelLVGetTopIndex(n); }},
        {L"ZelLVGetCountPerPage()", 0, L"Unable to retrieve count per page.", [=] { return ZelLVGetCountPerPage(n); }},
        {L"ZelLVGetOrigin()", 0, L"Unable to retrieve origin.", [=] { return ZelLVGetOrigin(n, &p); }},
        {L"ZelLVGetItemState()", 0, L"Unable to retrieve item state.", [=] { return ZelLVGetItemState(n, 0, 2); }},
        {L"ZelLVSetItemState()", 0, L"Unable to assign item state.", [=] { return ZelLVSetItemState(n, 0, 2, 2); }},
        {L"ZelLVGetItem()", 0, L"Unable to retrieve item.", [=] { return ZelLVGetItem(n, 0, 0, &s, &u, &i); }},
        {L"ZelLVSetItem()", 0, L"Unable to assign item.", [=] { return ZelLVSetItem(n, 0, 0, 1, L"x", 0, 0); }},
        {L"ZelLVGetSelectedCount()", 0, L"Unable to retrieve selected count.",
         [=] { return ZelLVGetSelectedCount(n); }},
        {L"ZelLVInsertItem()", -1, L"Unable to insert item.", [=] { return ZelLVInsertItem(n, 0, L"x", 0, 0); }},
        {L"ZelLVDeleteItem()", 0, L"Unable to delete item.", [=] { return ZelLVDeleteItem(n, 0); }},
        {L"ZelLVDeleteAllItems()", 0, L"Unable to delete all items.", [=] { return ZelLVDeleteAllItems(n); }},
        {L"ZelLVFindItem()", -1, L"Unable to find item.", [=] { return ZelLVFindItem(n, 2, L"x", -1); }},
        {L"ZelLVHitTest()", -1, L"Unable to hit test.", [=] { return ZelLVHitTest(n, 1, 1, &u); }},
        {L"ZelLVEnsureVisible()", 0, L"Unable to ensure visible.", [=] { return ZelLVEnsureVisible(n, 0, 0); }},
        {L"ZelLVScroll()", 0, L"Unable to scroll.", [=] { return ZelLVScroll(n, 0, 10); }},
        {L"ZelLVArrange()", 0, L"Unable to arrange items.", [=] { return ZelLVArrange(n, 0); }},
        {L"ZelLVGetStyle()", 0, L"Unable to retrieve style bits.", [=] { return ZelLVGetStyle(n); }},
        {L"ZelLVSetStyle()", 0, L"Unable to update style bits.", [=] { return ZelLVSetStyle(n, 1, 1); }},
        {L"ZelLVColumnsAssign()", 0, L"Unable to assign columns.", [=] { return ZelLVColumnsAssign(n, 1, 1, 1, 1); }},
        {L"ZelLVGetSortColumn()", -1, L"Unable to retrieve sort column.", [=] { return ZelLVGetSortColumn(n); }},
        {L"ZelLVSetSortColumn()", 0, L"Unable to assign sort column.", [=] { return ZelLVSetSortColumn(n, 1); }},
        {L"ZelLVGetSortOrder()", -1, L"Unable to retrieve sort order.", [=] { return ZelLVGetSortOrder(n); }},
        {L"ZelLVSetSortOrder()", 0, L"Unable to assign sort order.", [=] { return ZelLVSetSortOrder(n, 1); }},
        {L"ZelLVSortItems()", 0, L"Unable to sort items.", [=] { return ZelLVSortItems(n); }},
        {L"ZelLVImageAdd()", -1, L"Unable to add image to control.", [=] { return ZelLVImageAdd(n, 0, 0); }},
        {L"ZelLVImageCountGet()", -1, L"Unable to retrieve count on images in control.",
         [=] { return ZelLVImageCountGet(n); }},
        {L"ZelLVImageRemove()", 0, L"Unable to remove image from control.", [=] { return ZelLVImageRemove(n, 0); }},
        {L"ZelLVImageRemoveAll()", 0, L"Unable to remove all images from control.",
         [=] { return ZelLVImageRemoveAll(n); }},
        {L"ZelLVImageReplace()", 0, L"Unable to replace image in control.",
         [=] { return ZelLVImageReplace(n, 0, 0, 0); }},
    };
}

TEST(HeaderListNullControl, EveryExportShowsStringFortyEightAndFails) {
    const std::vector<Row> rows = Rows();
    ASSERT_EQ(rows.size(), 45u) << "all forty-five exports";
    zkt::ExpectNullControlFailures(rows);
}

} // namespace
