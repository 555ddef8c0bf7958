// CHeaderListBox: the platform's list view, subclassed, with the header
// list's logic behind it. The window procedure keeps the copy of the rows'
// places in step with every message that changes rows, handles the keys and
// mouse of the list, and answers the notifications the parent reflects.
#pragma once

#include <windows.h>

#include "frame/win/reflect.h"
#include "frame/win/window.h"
#include "headerlist/core/headerlist_model.h"
#include "headerlist/core/row_places.h"
#include "outline/win/pic.h"

namespace zk::hdr {

using lbx::PIC;

inline constexpr const wchar_t *kListViewClass = L"SysListView32";

class CHeaderListBox : public Window, public ListViewPort, public NotifyReflector {
public:
    CHeaderListBox() : logic_(*this) {}

    HeaderListModel &Logic() { return logic_; }
    const HeaderListModel &Logic() const { return logic_; }
    SPropHeaderListBox &Model() { return logic_.model; }

    // Makes the view as a child or pop-up of parent.
    bool Create(DWORD style, const RECT &area, HWND parent, UINT id, HWND hostNotify, HWND owner);
    // Applies a block: columns and rows go, the block becomes the model and is shown.
    void ApplyProperties(const SPropHeaderListBox &block);

    HWND HostNotifyWindow() const { return hostNotify_; }
    HWND OwnerWindow() const { return owner_; }
    bool MouseInProgress() const { return mouseInProgress_ != 0; }
    // Whether a selection command the owner takes now came from the mouse:
    // made while the default handling of WM_LBUTTONDOWN ran, though the
    // platform may post it only after that handling ends.
    bool TakeMouseSelection();
    // The first column's text of a view row, as the view gives it.
    std::wstring ItemText(int32_t row, int32_t column) const;
    // The first selected row, or -1.
    int32_t FirstSelected() const;

    // ZelLVSetItemState: notifications off while the view changes state.
    BOOL SetItemState(int32_t row, UINT state, UINT mask);
    // What ZelLVSetItemState does for a drop-down once the state is set: the
    // drop-down puts the selected row's first text into its edit.
    using SelectionEcho = void (*)(HWND owner, CHeaderListBox &list);
    static void SetSelectionEcho(SelectionEcho echo) { selectionEcho_ = echo; }

    // ---- images, kept in step in both lists ----
    int32_t AddImage(const PIC *large, const PIC *small);
    int32_t ReplaceImage(int32_t index, const PIC *large, const PIC *small);
    int32_t ImageCount() const;
    int32_t RemoveImage(int32_t index);
    int32_t RemoveAllImages();

    // ---- NotifyReflector ----
    bool OnReflectedNotify(NMHDR &header, LRESULT &result) override;

    // ---- ListViewPort ----
    int32_t RowCount() const override;
    bool RowParam(int32_t row, intptr_t &param) const override;
    int32_t InsertRow(int32_t row, int32_t image, intptr_t param) override;
    int32_t DeleteRow(int32_t row) override;
    int32_t DeleteAllRows() override;
    int32_t SetTextCallback(int32_t row, int32_t column) override;
    int32_t SetRow(int32_t row, int32_t column, uint32_t mask, int32_t image) override;
    void ReorderRows(const std::vector<int32_t> &order) override;
    void DeleteColumn(int32_t position) override;
    void InsertColumn(int32_t position, std::u16string_view text, int32_t format, int32_t width) override;
    void ForwardNotify(uint32_t code) override;
    void OwnerNotify(uint32_t code) override;
    void PostColumnSorted(int32_t descending, int32_t column) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // Owned by the wrapper or drop-down that made it, not by its window.
    void PostNcDestroy() override {}

private:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(GetSafeHwnd(), message, wParam, lParam);
    }
    // Steps 2 to 5 of applying a block, with the model as it is.
    void ShowModel();
    void DetachImageLists();
    LRESULT OnKeyDown(WPARAM key, LPARAM lParam);
    void DropCapture() const;
    // Keeps the copy of the rows' places in step with a message the view has handled.
    void TrackRows(UINT message, WPARAM wParam, LPARAM lParam, LRESULT result);
    const RowPlaces &Places() const;

    HeaderListModel logic_;
    HWND hostNotify_ = nullptr;
    HWND owner_ = nullptr;
    int32_t mouseInProgress_ = 0;
    int32_t mouseSelections_ = 0; // selection commands posted to the owner under the mouse
    bool redraw_ = true;
    // Some row has state beyond selection and focus, or an indent: a sort
    // then carries each row's whole state.
    bool richState_ = false;
    mutable RowPlaces places_;
    static SelectionEcho selectionEcho_;
};

} // namespace zk::hdr
