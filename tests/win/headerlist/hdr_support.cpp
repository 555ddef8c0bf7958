#include "hdr_support.h"

namespace hdrtest {

ColumnArrays::ColumnArrays(const std::vector<std::wstring> &headings, int32_t format, int32_t width)
    : texts(HostArrayCreate(5)), formats(HostArrayCreate(3)), widths(HostArrayCreate(3)) {
    for (size_t i = 0; i < headings.size(); ++i) {
        const auto index = static_cast<int32_t>(i);
        HostArraySetString(texts, ZkHostStrMake(headings[i].c_str()), index); // the array takes the reference
        HostNumber number{};
        HostArraySetNumber(formats, HostNumberFromShort(format, &number), index);
        HostArraySetNumber(widths, HostNumberFromShort(width, &number), index);
    }
}

ColumnArrays::~ColumnArrays() {
    for (HostArray array : {texts, formats, widths})
        HostArrayDestroy(array);
}

FormList::FormList(std::vector<std::wstring> columns, void *parameter, DWORD extraStyle) {
    wrapper_ = CreateWindowExW(0, L"ZK:cListView:10", L"", WS_CHILD | WS_VISIBLE | extraStyle, 10, 10, 440, 280, form,
                               reinterpret_cast<HMENU>(INT_PTR{5}), GetModuleHandleW(nullptr), parameter);
    MSG m{};
    if (wrapper_ && PeekMessageW(&m, wrapper_, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE))
        wrapperPointer_ = static_cast<ZelLVWrapper>(m.lParam);
    list_ = ZelLVGetListView(wrapperPointer_);
    if (list_ && !parameter)
        ZelLVSetStyle(list_, LVS_REPORT, 1);
    if (!columns.empty()) {
        const ColumnArrays arrays(columns);
        ZelLVColumnsAssign(list_, arrays.texts, arrays.formats, arrays.widths, static_cast<int32_t>(columns.size()));
    }
    zkt::DrainQueue();
}

FormList::~FormList() {
    if (IsWindow(wrapper_))
        DestroyWindow(wrapper_);
    zkt::DrainQueue();
}

HWND FormList::view() const { return GetWindow(wrapper_, GW_CHILD); }

void FormList::Add(const std::vector<std::wstring> &texts, int32_t image) {
    const int32_t row = ZelLVGetItemCount(list_);
    ZelLVInsertItem(list_, row, texts[0].c_str(), static_cast<uint32_t>(row), image);
    for (size_t column = 1; column < texts.size(); ++column)
        ZelLVSetItem(list_, row, static_cast<int32_t>(column), LVIF_TEXT, texts[column].c_str(), 0, 0);
}

std::wstring FormList::Cell(int32_t row, int32_t column) const {
    wchar_t buffer[128] = {};
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = buffer;
    item.cchTextMax = 128;
    SendMessageW(view(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return buffer;
}

std::wstring FormList::Column(int32_t column) const {
    std::wstring all;
    const int32_t count = ZelLVGetItemCount(list_);
    for (int32_t row = 0; row < count; ++row)
        all += (row ? L" " : L"") + Cell(row, column);
    return all;
}

void FormList::ClickHeader(int32_t column) const {
    RECT r{};
    SendMessageW(header(), HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&r));
    const LPARAM at = MAKELPARAM((r.left + r.right) / 2, (r.top + r.bottom) / 2);
    SendMessageW(header(), WM_LBUTTONDOWN, MK_LBUTTON, at);
    SendMessageW(header(), WM_LBUTTONUP, 0, at);
}

std::vector<int> Commands(const std::vector<zkt::Posted> &posted, HWND to) {
    std::vector<int> codes;
    for (const zkt::Posted &p : posted)
        if (p.message == WM_COMMAND && p.hwnd == to)
            codes.push_back(static_cast<short>(HIWORD(p.wParam)));
    return codes;
}

} // namespace hdrtest
