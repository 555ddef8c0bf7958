// ZelListLoadOutline: a saved outline back into a list, with its pictures
// and fonts loaded anew and owned by the list.
#include <vector>

#include "frame/win/guard.h"
#include "frame/win/host.h"
#include "outline/core/lbx_tree.h"
#include "outline/core/ofile_stream.h"
#include "outline/win/lbx_win.h"
#include "outline/win/ofile_win.h"
#include "outline/win/pic.h"
#include "outline/win/tree_ops.h"

namespace zk::lbx::ofile {
namespace {

// Shows everything but what the stream marked hidden.
constexpr int32_t kShowAllButHidden = 32766;

// Fresh registries filled from the stream; false on the first picture or
// font that does not load (the registries then hold what did).
bool LoadRegistries(HWND window, const OBLOB &blob, CPicArray *&pics, CFontArray *&fonts) {
    pics = LbxPicNew(window, 0);
    fonts = LbxFontNew(window, 0);
    if (!pics || !fonts)
        return false;
    for (const OBPIC &record : blob.pics) {
        PIC *pic = PicLoad(static_cast<uint16_t>(record.flags | PIC_ListOwned), Wide(record.source), Wide(record.name));
        if (!pic)
            return false;
        try {
            pics->Append(pic);
        } catch (...) {
            delete pic;
            throw;
        }
    }
    for (const OBFONT &record : blob.fonts) {
        HFONT font = FontLoad(Wide(record.faceName), record.points, record.styleBits);
        if (!font)
            return false;
        try {
            fonts->Append(font);
        } catch (...) {
            DeleteObject(font);
            throw;
        }
    }
    return true;
}

template <class Registry>
auto Entry(const Registry *registry, int32_t index) -> decltype(registry->At(0)) {
    return index >= 0 && index < registry->Count() ? registry->At(index) : nullptr;
}

// The records as nodes under the root, each under the parent its level
// gives. False when a node cannot be made.
bool BuildTree(HWND window, LbxNode *root, const OBLOB &blob, const std::vector<int32_t> &parents,
               const CPicArray *pics, const CFontArray *fonts) {
    std::vector<LbxNode *> nodes(blob.items.size(), nullptr);
    for (size_t i = 0; i < blob.items.size(); ++i) {
        const OBITEM &record = blob.items[i];
        if (parents[i] == kIsRoot) {
            if (!SetItemFlagsNode(root, record.flags, 1))
                return false;
            root->item->value = record.value;
            nodes[i] = root;
            continue;
        }
        LbxNode *parent = parents[i] == kUnderRoot ? root : nodes[static_cast<size_t>(parents[i])];
        LbxNode *node = LoadChildWindow(window, parent, Entry(pics, record.picNormal), Entry(pics, record.picSelected),
                                        Wide(record.text), record.value, record.flags);
        if (!node)
            return false;
        // A new node has no row yet: storing font and colour is all that
        // setting them would do.
        if (HFONT font = Entry(fonts, record.font))
            node->item->font = font;
        node->item->color = record.color;
        nodes[i] = node;
    }
    return true;
}

} // namespace

ZelItemHandle Load(HWND window, HostStr handle) {
    if (!window || !IsWindow(window) || !handle)
        return 0;
    LbxNode *root = LbxGetRoot(window);
    if (!root)
        return 0;
    int32_t size = 0;
    const auto *bytes = reinterpret_cast<const uint8_t *>(HostStrLock(handle, &size));
    if (!bytes || size < 1)
        return 0;
    // The whole stream is read and checked before the list is touched.
    OBLOB blob;
    std::vector<int32_t> parents;
    if (OutlineRead(bytes, static_cast<size_t>(size - 1), blob, parents, WidenSystem) != ReadStatus::ok)
        return 0;
    if (!ClearForLoad(window, root))
        return 0;
    ZelListSetStyle(window, blob.style, nullptr);
    ZelListSetIndent(window, static_cast<int32_t>(blob.indent));
    if (blob.items.empty())
        return LbxHandleOf(root);
    try {
        CPicArray *pics = nullptr;
        CFontArray *fonts = nullptr;
        if (!LoadRegistries(window, blob, pics, fonts) || !BuildTree(window, root, blob, parents, pics, fonts))
            throw MemoryException();
    } catch (...) {
        // Nothing may keep pointing at the pictures and fonts that go now.
        LbxFreeDescendents(root);
        FreeRegistries(window);
        return 0;
    }
    ShowOutlineWindow(window, kShowAllButHidden);
    if (HostWinType(window) & HOST_WT_LISTBOX)
        SendMessageW(window, LB_SETTOPINDEX, static_cast<WPARAM>(blob.topIndex), 0);
    return LbxHandleOf(root);
}

} // namespace zk::lbx::ofile
