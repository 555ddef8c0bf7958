// ZelListLoadOutlineFile: a tree from an indented text file. Rows are not
// made: the caller shows the outline when it likes.
#include <string>
#include <vector>

#include "frame/win/guard.h"
#include "frame/win/host.h"
#include "outline/core/lbx_tree.h"
#include "outline/core/ofile_text.h"
#include "outline/win/lbx_win.h"
#include "outline/win/ofile_win.h"
#include "outline/win/pic.h"
#include "outline/win/tree_ops.h"

namespace zk::lbx::ofile {
namespace {

// Default pictures from the library's own bitmaps, in argument order.
constexpr uint16_t kDefaultPictureFlags = 0x8201; // bitmap, from a module, owned by the list
constexpr const wchar_t *kDefaultModule = L"ZKLIB.dll";
constexpr const wchar_t *kDefaultNames[4] = {L"plusdk", L"pluswht", L"minusdk", L"minuswht"};

// The whole file, when it is smaller than the text form allows.
bool ReadWhole(const wchar_t *name, std::string &bytes) {
    if (!name)
        return false;
    HANDLE file = CreateFileW(name, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    LARGE_INTEGER size{};
    bool ok =
        GetFileSizeEx(file, &size) && size.QuadPart >= 0 && static_cast<unsigned long long>(size.QuadPart) < kTextLimit;
    if (ok) {
        try {
            bytes.resize(static_cast<size_t>(size.QuadPart));
        } catch (...) {
            ok = false;
        }
    }
    DWORD read = 0;
    if (ok && !bytes.empty())
        ok = ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr) && read == bytes.size();
    CloseHandle(file);
    return ok;
}

struct Pictures {
    PIC *parentNormal, *parentSelected, *leafNormal, *leafSelected;
};

// A fresh registry holding the defaults for the pictures given as 0.
bool LoadPictures(HWND window, const ZelPicHandle given[4], PIC *out[4]) {
    CPicArray *registry = LbxPicNew(window, 0);
    if (!registry)
        return false;
    for (int i = 0; i < 4; ++i) {
        if (given[i]) {
            out[i] = PicFromHandle(given[i]);
            continue;
        }
        PIC *pic = PicLoad(kDefaultPictureFlags, kDefaultModule, kDefaultNames[i]);
        if (!pic)
            return false;
        try {
            registry->Append(pic);
        } catch (...) {
            delete pic;
            throw;
        }
        out[i] = pic;
    }
    return true;
}

bool BuildTree(HWND window, LbxNode *root, const std::vector<TextLine> &lines, const Pictures &pictures) {
    std::vector<LbxNode *> nodes(lines.size(), nullptr);
    for (size_t i = 0; i < lines.size(); ++i) {
        const TextLine &line = lines[i];
        LbxNode *anchor = line.anchor == kTextRoot ? root : nodes[static_cast<size_t>(line.anchor)];
        LbxNode *node = nullptr;
        if (line.sibling) {
            node = LoadSiblingWindow(window, anchor, pictures.leafNormal, pictures.leafSelected, Wide(line.text), 0, 0);
        } else {
            SetItemPictureNode(anchor, pictures.parentNormal, pictures.parentSelected);
            node = LoadChildWindow(window, anchor, pictures.leafNormal, pictures.leafSelected, Wide(line.text), 0, 0);
        }
        if (!node)
            return false;
        nodes[i] = node;
    }
    return true;
}

} // namespace

ZelItemHandle LoadFile(HWND window, const wchar_t *name, const ZelPicHandle given[4]) {
    if (!window || !IsWindow(window))
        return 0;
    LbxNode *root = LbxGetRoot(window);
    if (!root)
        return 0;
    // The file is read and parsed whole before the list or its registry
    // changes: a missing, oversized or too deeply indented file leaves both.
    std::string bytes;
    std::vector<TextLine> lines;
    if (!ReadWhole(name, bytes) || OutlineTextParse(bytes, lines, WidenSystem) != TextStatus::ok)
        return 0;
    PIC *pictures[4] = {};
    try {
        if (!LoadPictures(window, given, pictures)) {
            LbxPicFreeAll(window);
            return 0;
        }
    } catch (...) {
        LbxPicFreeAll(window);
        return 0;
    }
    if (!ClearForLoad(window, root))
        return 0;
    try {
        if (BuildTree(window, root, lines, {pictures[0], pictures[1], pictures[2], pictures[3]}))
            return LbxHandleOf(root);
    } catch (...) {
    }
    // Nothing may keep pointing at the registry's pictures once it is gone.
    LbxFreeDescendents(root);
    LbxPicFreeAll(window);
    return 0;
}

} // namespace zk::lbx::ofile
