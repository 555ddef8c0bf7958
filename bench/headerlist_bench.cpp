// The header list against the platform's list view alone.
//
// Filling: rows of five columns through ZelLVInsertItem and ZelLVSetItem,
// against LVM_INSERTITEMW and LVM_SETITEMTEXTW on a plain report list view,
// both with redraw off; the list also posts the host its forwarded
// LVN_INSERTITEM for every row, as a host expects. Bound 1.5.
//
// Sorting: a click on a header of rows whose keys are random, against
// std::stable_sort of the same row indices under the same comparison in
// this process (bound 1.5); the same click again sorts the sorted rows the
// other way, a reversed input (bound 2 against the random one); and the
// random sort of 100,000 rows against 10,000 (bound 13). The program fails
// only when rows come out in the wrong order or go missing.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "bench.h"
#include "headerlist/core/headerlist_text_order.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace {

using namespace bench;

constexpr int kColumns = 5;

HWND MakeForm() {
    static const bool registered = [] {
        WNDCLASSW wc{};
        wc.lpfnWndProc = DefWindowProcW;
        wc.hInstance = GetModuleHandleW(nullptr);
        wc.lpszClassName = L"ZkHeaderListBenchForm";
        return RegisterClassW(&wc) != 0;
    }();
    (void)registered;
    return CreateWindowExW(0, L"ZkHeaderListBenchForm", L"bench", WS_OVERLAPPEDWINDOW, 0, 0, 600, 400, nullptr, nullptr,
                           GetModuleHandleW(nullptr), nullptr);
}

// Drops what the list posted meanwhile: the form goes with its messages.
void Discard(HWND form) {
    DestroyWindow(form);
    MSG m{};
    for (int i = 0; i < 1000000 && PeekMessageW(&m, nullptr, 0, 0, PM_REMOVE); ++i)
        DispatchMessageW(&m);
}

// Rows of random keys, one text per column.
std::vector<std::vector<std::wstring>> Rows(int count, unsigned seed) {
    std::mt19937 random(seed);
    std::vector<std::vector<std::wstring>> rows(static_cast<size_t>(count));
    for (auto &row : rows)
        for (int c = 0; c < kColumns; ++c) {
            std::wstring text;
            const int length = 4 + static_cast<int>(random() % 8);
            for (int i = 0; i < length; ++i) {
                const unsigned pick = random() % 52;
                text += static_cast<wchar_t>(pick < 26 ? L'a' + pick : L'A' + pick - 26);
            }
            row.push_back(text);
        }
    return rows;
}

struct HeaderList {
    HWND form = nullptr, wrapper = nullptr, view = nullptr;
    ZelLVControl list = 0;

    HeaderList() {
        form = MakeForm();
        wrapper = CreateWindowExW(0, L"ZK:cListView:10", L"", WS_CHILD | WS_VISIBLE, 0, 0, 580, 380, form, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
        MSG m{};
        if (PeekMessageW(&m, wrapper, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE))
            list = ZelLVGetListView(static_cast<ZelLVWrapper>(m.lParam));
        view = GetWindow(wrapper, GW_CHILD);
        ZelLVSetStyle(list, LVS_REPORT, 1);
        HostArray texts = HostArrayCreate(5), formats = HostArrayCreate(3), widths = HostArrayCreate(3);
        for (int c = 0; c < kColumns; ++c) {
            const std::wstring name = L"Column " + std::to_wstring(c);
            HostArraySetString(texts, ZkHostStrMake(name.c_str()),
                               c); // the array takes the reference
            HostNumber number{};
            HostArraySetNumber(formats, HostNumberFromShort(0, &number), c);
            HostArraySetNumber(widths, HostNumberFromShort(100, &number), c);
        }
        ZelLVColumnsAssign(list, texts, formats, widths, kColumns);
        for (HostArray a : {texts, formats, widths})
            HostArrayDestroy(a);
    }
    ~HeaderList() { Discard(form); }

    void Fill(const std::vector<std::vector<std::wstring>> &rows) {
        SendMessageW(view, WM_SETREDRAW, FALSE, 0);
        for (size_t r = 0; r < rows.size(); ++r) {
            const auto row = static_cast<int32_t>(r);
            ZelLVInsertItem(list, row, rows[r][0].c_str(), static_cast<uint32_t>(r), 0);
            for (int c = 1; c < kColumns; ++c)
                ZelLVSetItem(list, row, c, LVIF_TEXT, rows[r][static_cast<size_t>(c)].c_str(), 0, 0);
        }
    }

    void ClickHeader(int column) const {
        HWND header = ListView_GetHeader(view);
        RECT r{};
        SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&r));
        const LPARAM at = MAKELPARAM((r.left + r.right) / 2, (r.top + r.bottom) / 2);
        SendMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, at);
        SendMessageW(header, WM_LBUTTONUP, 0, at);
    }

    // Whether the view's column is in order, and holds every row.
    bool InOrder(int column, bool descending, int count) const {
        if (ZelLVGetItemCount(list) != count)
            return false;
        std::wstring previous;
        for (int row = 0; row < count; ++row) {
            wchar_t buffer[64] = {};
            LVITEMW item{};
            item.iSubItem = column;
            item.pszText = buffer;
            item.cchTextMax = 64;
            SendMessageW(view, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
            const std::wstring text = buffer;
            if (row) {
                const int order = zk::hdr::CompareNoCase(
                    std::u16string_view(reinterpret_cast<const char16_t *>(previous.data()), previous.size()),
                    std::u16string_view(reinterpret_cast<const char16_t *>(text.data()), text.size()));
                if (descending ? order < 0 : order > 0)
                    return false;
            }
            previous = text;
        }
        return true;
    }
};

double PlainFill(const std::vector<std::vector<std::wstring>> &rows) {
    HWND form = MakeForm();
    HWND view = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 580, 380, form, nullptr,
                                GetModuleHandleW(nullptr), nullptr);
    for (int c = 0; c < kColumns; ++c) {
        std::wstring name = L"Column " + std::to_wstring(c);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.cx = 100;
        column.pszText = name.data();
        SendMessageW(view, LVM_INSERTCOLUMNW, static_cast<WPARAM>(c), reinterpret_cast<LPARAM>(&column));
    }
    const double time = TimeOf([&] {
        SendMessageW(view, WM_SETREDRAW, FALSE, 0);
        for (size_t r = 0; r < rows.size(); ++r) {
            LVITEMW item{};
            item.mask = LVIF_TEXT | LVIF_PARAM;
            item.iItem = static_cast<int>(r);
            item.pszText = const_cast<wchar_t *>(rows[r][0].c_str());
            item.lParam = static_cast<LPARAM>(r);
            const auto at = SendMessageW(view, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
            for (int c = 1; c < kColumns; ++c) {
                LVITEMW cell{};
                cell.iSubItem = c;
                cell.pszText = const_cast<wchar_t *>(rows[r][static_cast<size_t>(c)].c_str());
                SendMessageW(view, LVM_SETITEMTEXTW, static_cast<WPARAM>(at), reinterpret_cast<LPARAM>(&cell));
            }
        }
    });
    Discard(form);
    return time;
}

// What the host is told of every new row: one posted command each, timed
// alone, for the share of the fill that no library can save.
double PostsTime(int count) {
    HWND form = MakeForm();
    const double time = TimeOf([&] {
        for (int i = 0; i < count; ++i)
            PostMessageW(form, WM_COMMAND, MAKEWPARAM(0, LVN_INSERTITEM), 0);
    });
    Discard(form);
    return time;
}

int CALLBACK CompareParams(LPARAM a, LPARAM b, LPARAM) { return a < b ? -1 : a > b; }

// The floor of rearranging a view's rows one message each (LVM_SETITEMW of
// a new lParam on every row of a plain view, redraw off), and the
// platform's own LVM_SORTITEMS of the same rows by integer keys.
void ViewFloors(Run &run, int count) {
    HWND form = MakeForm();
    HWND view = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | LVS_REPORT, 0, 0, 580, 380, form, nullptr,
                                GetModuleHandleW(nullptr), nullptr);
    SendMessageW(view, WM_SETREDRAW, FALSE, 0);
    std::mt19937 random(4);
    for (int r = 0; r < count; ++r) {
        LVITEMW item{};
        item.mask = LVIF_TEXT | LVIF_PARAM;
        item.iItem = r;
        item.pszText = LPSTR_TEXTCALLBACKW;
        item.lParam = static_cast<LPARAM>(random() % 1000000);
        SendMessageW(view, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    const double rewrite = TimeOf([&] {
        for (int r = 0; r < count; ++r) {
            LVITEMW item{};
            item.mask = LVIF_PARAM;
            item.iItem = r;
            item.lParam = static_cast<LPARAM>(random() % 1000000);
            SendMessageW(view, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
    });
    const double platform =
        TimeOf([&] { SendMessageW(view, LVM_SORTITEMS, 0, reinterpret_cast<LPARAM>(&CompareParams)); });
    Discard(form);
    run.Note("sort floor: LVM_SETITEMW of every row, seconds", rewrite);
    run.Note("sort: the platform's LVM_SORTITEMS (integer keys), seconds", platform);
}

double StableSortTime(const std::vector<std::vector<std::wstring>> &rows, int column) {
    std::vector<std::u16string_view> keys;
    for (const auto &row : rows) {
        const std::wstring &t = row[static_cast<size_t>(column)];
        keys.emplace_back(reinterpret_cast<const char16_t *>(t.data()), t.size());
    }
    std::vector<int32_t> order(rows.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = static_cast<int32_t>(i);
    return TimeOf([&] {
        std::stable_sort(order.begin(), order.end(),
                         [&](int32_t a, int32_t b) { return zk::hdr::CompareNoCase(keys[a], keys[b]) < 0; });
    });
}

} // namespace

int main(int argc, char **argv) {
    Run run("bench_headerlist", argc, argv);
    const int fillRows = run.Size(2000, 100000);
    const int rounds = run.Size(1, 3);

    // ---- filling ----
    {
        const auto rows = Rows(fillRows, 1);
        std::vector<double> plain, ours;
        for (int round = 0; round < rounds; ++round) {
            plain.push_back(PlainFill(rows));
            HeaderList list;
            ours.push_back(TimeOf([&] { list.Fill(rows); }));
            run.Check(ZelLVGetItemCount(list.list) == fillRows, "every row filled");
            wchar_t buffer[64] = {};
            LVITEMW item{};
            item.iSubItem = 4;
            item.pszText = buffer;
            item.cchTextMax = 64;
            SendMessageW(list.view, LVM_GETITEMTEXTW, static_cast<WPARAM>(fillRows - 1),
                         reinterpret_cast<LPARAM>(&item));
            run.Check(rows.back()[4] == buffer, "the last cell as the store holds it");
        }
        run.Note("fill: plain list view, seconds", Median(plain));
        run.Note("fill: header list, seconds", Median(ours));
        run.Figure("fill through the exports / plain list view", Median(ours) / Median(plain), Want::AtMost, 1.5);
        run.Note("fill: the forwarded LVN_INSERTITEM posts alone, seconds", PostsTime(fillRows));
    }

    // ---- sorting ----
    const int large = run.Size(4000, 100000), small = run.Size(400, 10000);
    std::vector<double> random, reversed, smallRandom, baseline;
    {
        const auto rows = Rows(large, 2);
        HeaderList list;
        list.Fill(rows);
        for (int round = 0; round < std::max(rounds, 3); ++round) {
            const int column = 1 + round % 3;
            random.push_back(TimeOf([&] { list.ClickHeader(column); }));
            run.Check(list.InOrder(column, false, large), "a first click sorts ascending");
            reversed.push_back(TimeOf([&] { list.ClickHeader(column); }));
            run.Check(list.InOrder(column, true, large), "a second click sorts descending");
            baseline.push_back(StableSortTime(rows, column));
        }
    }
    {
        const auto rows = Rows(small, 3);
        HeaderList list;
        list.Fill(rows);
        // A sample of the small size is the mean of several sorts of random rows:
        // the rows are first put in the order of column 0, unrelated to the others.
        const int repeat = 6;
        for (int round = 0; round < std::max(rounds, 3); ++round) {
            double sum = 0;
            for (int i = 0; i < repeat; ++i) {
                const int column = 1 + i % 3;
                list.ClickHeader(0);
                sum += TimeOf([&] { list.ClickHeader(column); });
                run.Check(list.InOrder(column, false, small), "the small list sorted");
            }
            smallRandom.push_back(sum / repeat);
        }
    }
    ViewFloors(run, large);
    run.Note("sort: std::stable_sort, seconds", Median(baseline));
    run.Note("sort: header click on random rows, seconds", Median(random));
    run.Figure("header click / std::stable_sort (random rows)", Median(random) / Median(baseline), Want::AtMost, 1.5);
    run.Figure("header click: reversed rows / random rows", Median(reversed) / Median(random), Want::AtMost, 2.0);
    run.Figure("header click: t(100k) / t(10k)", Median(random) / Median(smallRandom), Want::AtMost, 13.0);
    return run.Finish();
}
