#include "outline/win/ofile_win.h"

#include <vector>

#include "frame/win/host.h"
#include "outline/core/lbx_tree.h"
#include "outline/win/lbx_win.h"
#include "outline/win/pic.h"

namespace zk::lbx::ofile {

std::u16string WidenSystem(std::string_view bytes) {
    if (bytes.empty())
        return {};
    const int count = static_cast<int>(bytes.size());
    const int needed = MultiByteToWideChar(CP_ACP, 0, bytes.data(), count, nullptr, 0);
    if (needed <= 0)
        return {};
    std::u16string wide(static_cast<size_t>(needed), u'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), count, reinterpret_cast<wchar_t *>(wide.data()), needed);
    return wide;
}

bool ClearForLoad(HWND window, LbxNode *root) {
    HLOCAL parent = LbxFindParent(window);
    if (!parent)
        return false;
    // Rows added flat (no node) are freed here: the keep-items bit that
    // spares the tree's items would otherwise leave them to nobody.
    std::vector<LbxItem *> flat;
    LbxChild child{};
    if (LbxGetChildCopy(window, &child)) {
        const bool combo = ControlKind(window) == LbxKind::Combo;
        const auto count = static_cast<int32_t>(SendMessageW(window, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0));
        for (int32_t row = 0; row < count; ++row) {
            LbxItem *item = LbxItemOf(LbxBaseRow(child, window, combo, row));
            if (item && !item->node)
                flat.push_back(item);
        }
    }
    if (!ParentFlags(parent, LBX_ParentKeepItems, 0))
        return false;
    HostListClear(window);
    ParentFlags(parent, 0, LBX_ParentKeepItems);
    for (LbxItem *item : flat)
        delete item;
    LbxFreeDescendents(root);
    return true;
}

void FreeRegistries(HWND window) noexcept {
    LbxPicFreeAll(window);
    LbxFontFreeAll(window);
}

} // namespace zk::lbx::ofile
