// A form with adopted outline lists, streams spelt out byte by byte, and
// host strings that carry them.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "byte_writer.h"
#include "files_support.h"
#include "list_support.h"
#include "outline/core/lbx.h"
#include "outline/win/pic.h"
#include "zkharness.h"
#include "zkhostctl.h"
#include "zklib.h"

using namespace zk::lbx;

namespace ofiletest {

using Bytes = std::vector<uint8_t>;
using outlinetest::kListStyle;
using outlinetest::Walk;
using zk::lbx::CPicArray;

constexpr DWORD kComboStyle = CBS_DROPDOWNLIST | WS_VSCROLL | CBS_OWNERDRAWVARIABLE;
// Adoption with the outline bit completes the style thus.
constexpr uint32_t kOutlineStyle = LBX_StyleOutline | LBX_StyleTextSelect | LBX_StyleOwnerDraw;

// An outline stream spelt out piece by piece.
struct Spell : zkt::ByteWriterOf<Spell> {
    Spell &header(uint32_t style, uint32_t indent, int32_t top, uint32_t pics, uint32_t fonts, uint32_t items) {
        return u16(0x8759).u32(style).u32(indent).u32(static_cast<uint32_t>(top)).u32(pics).u32(fonts).u32(items);
    }
    // level, normal, selected, font, colour, flags, value, then the text.
    Spell &item(int32_t level, int32_t normal, int32_t selected, int32_t font, uint32_t colour, uint32_t flags,
                int32_t value, std::wstring_view text) {
        for (uint32_t v :
             {uint32_t(level), uint32_t(normal), uint32_t(selected), uint32_t(font), colour, flags, uint32_t(value)})
            u32(v);
        return wide(text);
    }
};

// A host string holding the bytes and the NUL after them, as a save gives it.
inline HostStr Carry(const Bytes &bytes) {
    HostStr handle = 0;
    if (!HostStrAlloc(&handle, static_cast<int32_t>(bytes.size() + 1)))
        return 0;
    int32_t size = 0;
    auto *buffer = reinterpret_cast<uint8_t *>(HostStrLock(handle, &size));
    if (!bytes.empty())
        std::memcpy(buffer, bytes.data(), bytes.size());
    buffer[bytes.size()] = 0;
    return handle;
}

inline LbxNode *Node(ZelItemHandle handle) { return reinterpret_cast<LbxNode *>(handle); }
inline std::wstring NodeText(const LbxNode *node) {
    return reinterpret_cast<const wchar_t *>(node->item->text.c_str());
}

// One line per node below `root`, pre-order: indentation by level, text,
// value, flags and colour in hex.
inline std::string Describe(ZelItemHandle root) {
    std::string out;
    for (const LbxNode *n : Walk(Node(root))) {
        char line[160];
        std::snprintf(line, sizeof line, "%*s%ls v%d f%08x c%06x\n", 2 * n->level, "", NodeText(n).c_str(),
                      n->item->value, static_cast<unsigned>(n->item->flags), static_cast<unsigned>(n->item->color));
        out += line;
    }
    return out;
}

inline int32_t Indent(HWND window) { return outlinetest::ChildRecord(window).indent; }

inline int Rows(HWND list) { return static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0)); }
inline CPicArray *PicRegistry(HWND list) { return static_cast<CPicArray *>(GetPropW(list, L"ZK:PicList")); }
inline void *FontRegistry(HWND list) { return GetPropW(list, L"ZK:FontList"); }
inline PIC *PicAt(const CPicArray *pics, int index) { return pics->Items()[static_cast<size_t>(index)]; }

struct FileFixture : ::testing::Test {
    zkt::TestWindow form{500, 400};
    HWND list = nullptr;
    HWND other = nullptr;

    void SetUp() override {
        list = form.AddListBox(101, {10, 10, 200, 150}, kListStyle);
        other = form.AddListBox(102, {220, 10, 200, 150}, kListStyle);
        ASSERT_EQ(ZelListSetStyle(list, LBX_StyleOutline, nullptr), 1);
        ASSERT_EQ(ZelListSetStyle(other, LBX_StyleOutline, nullptr), 1);
    }

    ZelItemHandle Root(HWND w = nullptr) { return ZelListGetRoot(w ? w : list); }
    ZelItemHandle Child(ZelItemHandle parent, const wchar_t *text, int32_t value = 0, uint32_t flags = 0,
                        ZelPicHandle normal = 0, ZelPicHandle selected = 0, HWND w = nullptr) {
        return ZelListLoadChild(w ? w : list, parent, normal, selected, text, value, flags);
    }

    // The stream a save gives: all the string's bytes but the last, which must be NUL.
    Bytes Save(HWND w) {
        HostStr out = 0;
        EXPECT_EQ(ZelListSaveOutline(w, &out), 0);
        int32_t size = 0;
        const auto *buffer = out ? reinterpret_cast<const uint8_t *>(HostStrLock(out, &size)) : nullptr;
        if (!buffer || size < 1) {
            ADD_FAILURE() << "no stream";
            return {};
        }
        EXPECT_EQ(buffer[size - 1], 0);
        Bytes bytes(buffer, buffer + size - 1);
        ZkHostStrRelease(out);
        return bytes;
    }
    ZelItemHandle Load(HWND w, const Bytes &bytes) {
        HostStr carrier = Carry(bytes);
        const ZelItemHandle root = ZelListLoadOutline(w, carrier);
        ZkHostStrRelease(carrier);
        return root;
    }
};

} // namespace ofiletest
