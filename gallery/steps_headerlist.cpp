// The header list as a form shows it: a report of several columns with
// images in their rows, sorted by a header click, photographed from the
// screen.

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "capture.h"
#include "ownedstr.h"
#include "pictures.h"
#include "report.h"
#include "steps.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace gallery {

namespace {

constexpr int kWidth = 420, kHeight = 200;

LRESULT CALLBACK HolderProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(window, message, wParam, lParam);
}

HWND MakeHolder() {
    WNDCLASSW wc{};
    wc.lpfnWndProc = HolderProc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    wc.lpszClassName = L"ZkGalleryHeaderList";
    RegisterClassW(&wc);
    return CreateWindowExW(0, wc.lpszClassName, L"Header list", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 60, kWidth + 40,
                           kHeight + 60, nullptr, nullptr, wc.hInstance, nullptr);
}

// A square of one colour with a white border (the corner colour, so made
// transparent), as a BMP in memory.
std::vector<uint8_t> Square(int side, COLORREF colour) {
    const int stride = (side * 3 + 3) & ~3;
    std::vector<uint8_t> bmp(54 + static_cast<size_t>(stride * side), 0);
    auto put = [&](size_t at, uint32_t value, int count) {
        for (int i = 0; i < count; ++i)
            bmp[at + i] = static_cast<uint8_t>(value >> (8 * i));
    };
    put(0, 0x4D42, 2);
    put(2, static_cast<uint32_t>(bmp.size()), 4);
    put(10, 54, 4);
    put(14, 40, 4);
    put(18, static_cast<uint32_t>(side), 4);
    put(22, static_cast<uint32_t>(side), 4);
    put(26, 1, 2);
    put(28, 24, 2);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const bool edge = x < 2 || y < 2 || x >= side - 2 || y >= side - 2;
            const size_t at = 54 + static_cast<size_t>(y * stride + 3 * x);
            const COLORREF c = edge ? RGB(255, 255, 255) : colour;
            bmp[at] = GetBValue(c);
            bmp[at + 1] = GetGValue(c);
            bmp[at + 2] = GetRValue(c);
        }
    return bmp;
}

struct Row {
    const wchar_t *name, *town, *team, *since;
    int32_t image;
};

} // namespace

void RunHeaderListSteps(Report &report, Pictures &pictures) {
    report.Section(L"Header list");
    HWND holder = MakeHolder();
    HWND wrapper =
        CreateWindowExW(0, L"ZK:cListView:10", L"", WS_CHILD | WS_VISIBLE | WS_BORDER, 10, 10, kWidth, kHeight, holder,
                        reinterpret_cast<HMENU>(INT_PTR{101}), GetModuleHandleW(nullptr), nullptr);
    ZelLVWrapper announced = 0;
    MSG m{};
    if (wrapper && PeekMessageW(&m, wrapper, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE))
        announced = static_cast<ZelLVWrapper>(m.lParam);
    const ZelLVControl list = ZelLVGetListView(announced);
    report.Check(L"ZK:cListView:10 announced its list", list ? L"a pointer" : L"nothing", list != 0);
    if (!list) {
        DestroyWindow(holder);
        return;
    }
    ZelLVSetStyle(list, LVS_REPORT | LVS_SHOWSELALWAYS, 1);

    const std::vector<std::wstring> headings = {L"Name", L"Town", L"Team", L"Since"};
    const std::vector<int16_t> widths = {110, 100, 110, 80};
    HostArray texts = HostArrayCreate(5), formats = HostArrayCreate(3), sizes = HostArrayCreate(3);
    for (size_t i = 0; i < headings.size(); ++i) {
        const auto at = static_cast<int32_t>(i);
        HostArraySetString(texts, ZkHostStrMake(headings[i].c_str()),
                           at); // the array takes the reference
        HostNumber number{};
        HostArraySetNumber(formats, HostNumberFromShort(i == 3 ? LVCFMT_RIGHT : LVCFMT_LEFT, &number), at);
        HostArraySetNumber(sizes, HostNumberFromShort(widths[i], &number), at);
    }
    report.Number(L"ZelLVColumnsAssign, four columns", ZelLVColumnsAssign(list, texts, formats, sizes, 9), 1);
    for (HostArray array : {texts, formats, sizes})
        HostArrayDestroy(array);

    // Colours of the 16-colour lists the block makes (ILC_MASK alone).
    const COLORREF colours[] = {RGB(255, 0, 0), RGB(0, 128, 0), RGB(0, 0, 255)};
    std::vector<ZelPicHandle> owned;
    int32_t firstImage = -1;
    for (COLORREF colour : colours) {
        const auto large = Square(32, colour), small = Square(16, colour);
        const ZelPicHandle big =
            ZelPicLoad(PIC_FormatBitmap | PIC_LoadMemory, reinterpret_cast<const wchar_t *>(large.data()), L"");
        const ZelPicHandle little =
            ZelPicLoad(PIC_FormatBitmap | PIC_LoadMemory, reinterpret_cast<const wchar_t *>(small.data()), L"");
        const int32_t index = ZelLVImageAdd(list, big, little);
        if (firstImage < 0)
            firstImage = index;
        owned.push_back(big);
        owned.push_back(little);
    }
    report.Number(L"ZelLVImageCountGet: the default icon and three squares", ZelLVImageCountGet(list), 4);

    const Row rows[] = {
        {L"Hilde Berg", L"Bergen", L"Red", L"2019", 1},   {L"anton Weiss", L"Graz", L"Green", L"2021", 2},
        {L"Claire Dubois", L"Lyon", L"Blue", L"2017", 3}, {L"Bruno Costa", L"Porto", L"Red", L"2022", 1},
        {L"eva Lind", L"Umea", L"Blue", L"2020", 3},      {L"Dario Neri", L"Siena", L"Green", L"2018", 2},
    };
    for (const Row &r : rows) {
        const int32_t at = ZelLVGetItemCount(list);
        ZelLVInsertItem(list, at, r.name, static_cast<uint32_t>(at), r.image);
        ZelLVSetItem(list, at, 1, LVIF_TEXT, r.town, 0, 0);
        ZelLVSetItem(list, at, 2, LVIF_TEXT, r.team, 0, 0);
        ZelLVSetItem(list, at, 3, LVIF_TEXT, r.since, 0, 0);
    }
    report.Number(L"ZelLVGetItemCount", ZelLVGetItemCount(list), 6);

    // A click on the "Town" header, as the user makes it: ascending.
    HWND view = GetWindow(wrapper, GW_CHILD);
    HWND header = ListView_GetHeader(view);
    RECT r{};
    Header_GetItemRect(header, 1, &r);
    const LPARAM at = MAKELPARAM((r.left + r.right) / 2, (r.top + r.bottom) / 2);
    SendMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, at);
    SendMessageW(header, WM_LBUTTONUP, 0, at);
    ZelLVSetItemState(list, 1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    OwnedStr first;
    uint32_t data = 0;
    int32_t image = -1;
    {
        HostStr text = 0;
        ZelLVGetItem(list, 0, 0, &text, &data, &image);
        first.Reset(text);
    }
    report.Text(L"after a click on Town, the first row", first.Text(), L"Hilde Berg");
    report.Number(L"its item data, kept with the row", data, 0);
    report.Number(L"its image", image, 1);
    report.Number(L"ZelLVGetSortOrder: the click leaves the block's order", ZelLVGetSortOrder(list), 0);
    wchar_t selected[64] = {};
    GetWindowTextW(wrapper, selected, 64);
    report.Text(L"the wrapper's text: the selected row", selected, L"anton Weiss");

    MSG pending{};
    while (PeekMessageW(&pending, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&pending);
    RedrawWindow(holder, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    // The whole window: the header is a child of the view, which a picture of the view leaves out.
    pictures.Save(L"headerlist", CaptureTopLevel(holder));
    DestroyWindow(holder);
    for (ZelPicHandle picture : owned)
        ZelPicFree(picture);
}

} // namespace gallery
