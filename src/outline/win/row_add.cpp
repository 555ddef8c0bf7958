// The row add step the add and insert exports share with the adopted controls.
#include <string>
#include <utility>

#include "frame/win/guard.h"
#include "outline/win/lbx_win.h"
#include "outline/win/pic.h"
#include "outline/win/row_exports.h"

namespace zk::lbx {

int32_t AddRow(HWND window, int32_t row, const wchar_t *text, const RowFields &fields) {
    const std::u16string copy = text ? std::u16string(LbxU16(text)) : std::u16string();
    LbxChild child{};
    if (!LbxGetChildCopy(window, &child) || !GetParent(window)) {
        return -1;
    }
    auto *item = new LbxItem();
    item->color = fields.color;
    item->flags = fields.flags;
    item->value = fields.value;
    item->picNormal = fields.normal;
    item->picSelected = fields.selected;
    item->font = fields.font;
    try {
        item->text.assign(copy);
        LbxNormalizeText(child.style, item->text, LbxPlatformCase());
    } catch (...) {
        delete item;
        throw;
    }
    const LRESULT answer =
        row == -2 ? SendMessageW(window, ZKM_LbxAddRow, 0, reinterpret_cast<LPARAM>(item))
                  : SendMessageW(window, ZKM_LbxInsertRow, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(item));
    if (answer < 0) {
        delete item;
    }
    return static_cast<int32_t>(answer);
}

} // namespace zk::lbx
