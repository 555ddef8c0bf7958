// CDlgHeaderLB: the form's window of class "ZK:cListView:10", holding the
// list it made over its client area. It owns the list object.
#pragma once

#include <windows.h>

#include "frame/win/window.h"
#include "headerlist/win/headerlist_window.h"

namespace zk::hdr {

inline constexpr const wchar_t *kDlgHeaderLBClass = L"ZK:cListView:10";

class CDlgHeaderLB : public Window {
public:
    CDlgHeaderLB() = default;
    ~CDlgHeaderLB() override;

    // Null until WM_CREATE.
    CHeaderListBox *List() const { return list_; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    LRESULT OnCreate(LPARAM lParam);
    // WM_GETTEXT and WM_GETTEXTLENGTH: the first column of the first selected row.
    std::wstring SelectedText() const;

    CHeaderListBox *list_ = nullptr;
};

} // namespace zk::hdr
