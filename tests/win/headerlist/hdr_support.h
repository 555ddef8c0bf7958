// What the header list's Windows tests share: a form with a header list made
// by the host's class, the pointers it announced, rows filled through the
// exports, and what the list posts.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "win_control.h"
#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace hdrtest {

// The three host arrays of ZelLVColumnsAssign, one entry per heading.
struct ColumnArrays {
    explicit ColumnArrays(const std::vector<std::wstring> &headings, int32_t format = 0, int32_t width = 90);
    ~ColumnArrays();
    HostArray texts, formats, widths;
};

// "ZK:cListView:10" on a test window, in report view with the columns
// given (none: the block's default column "Item").
class FormList {
public:
    explicit FormList(std::vector<std::wstring> columns = {}, void *parameter = nullptr, DWORD extraStyle = 0);
    ~FormList();

    HWND wrapper() const { return wrapper_; }
    HWND view() const;
    HWND header() const { return ListView_GetHeader(view()); }
    ZelLVWrapper WrapperPointer() const { return wrapperPointer_; }
    ZelLVControl list() const { return list_; }

    // Rows through the exports: one text per column, item data = row number.
    void Add(const std::vector<std::wstring> &texts, int32_t image = 0);
    // A cell as the view shows it (LVM_GETITEMTEXTW).
    std::wstring Cell(int32_t row, int32_t column) const;
    // The first column of every row, in the view's order, joined by spaces.
    std::wstring Column(int32_t column) const;
    // A left click in the middle of a header item, as the user makes it.
    void ClickHeader(int32_t column) const;

    zkt::TestWindow form{480, 320};

private:
    HWND wrapper_ = nullptr;
    ZelLVWrapper wrapperPointer_ = 0;
    ZelLVControl list_ = 0;
};

// The WM_COMMAND codes posted to a window (from any control), in order.
std::vector<int> Commands(const std::vector<zkt::Posted> &posted, HWND to);

} // namespace hdrtest
