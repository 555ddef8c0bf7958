// A bench for the row paint: a list box carrying a child record, items and
// tree nodes built here, and a canvas the rows are painted on.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "list_support.h"
#include "outline/core/lbx.h"
#include "outline/win/lbx_paint_entry.h"
#include "outline/win/pic.h"
#include "zkharness.h"

using namespace zk::lbx;

namespace painttest {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kGray = RGB(128, 128, 128);
constexpr COLORREF kKey = RGB(255, 0, 255);
constexpr int kRowWidth = 300;
constexpr int kRowHeight = 16;

class PaintBench : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // The child record's fields.
    void SetStyle(uint32_t style, int32_t indent = 8);
    void SetTabs(std::vector<int32_t> stops, int32_t count);
    LbxChild Child() const { return outlinetest::ChildRecord(list); }

    LbxItem *Item(const wchar_t *text, COLORREF colour = kBlack, uint32_t flags = 0);
    // A node under `parent` (null: under the root), made the last child.
    LbxNode *Node(LbxNode *parent, const wchar_t *text);
    // A 16 by 16 bitmap picture: the key colour around a black square at
    // 4..11, with the mask the library would make from its top-left pixel.
    PIC *Picture();

    // Paints one row of `item` on the canvas; the result of LbxDrawItem.
    bool Draw(const void *data, UINT action, UINT state, RECT row = {0, 0, kRowWidth, kRowHeight},
              LRESULT *answer = nullptr);

    TEXTMETRICW Metrics() const { return outlinetest::FontMetrics(list, font); }
    int Width(const wchar_t *text) const { return outlinetest::TextWidth(list, font, text); }
    // Columns of the canvas row band that hold the colour, first and last; -1 if none.
    int FirstColumn(COLORREF colour, int fromX = 0, int toX = kRowWidth) const;

    zkt::TestWindow form{400, 200};
    HWND list = nullptr;
    HFONT font = nullptr;
    HLOCAL record = nullptr;
    HLOCAL stops = nullptr;
    LbxNode *root = nullptr;
    zkt::Bitmap canvas{kRowWidth, kRowHeight};
    std::vector<LbxItem *> items;
    std::vector<LbxNode *> nodes;
    std::vector<PIC *> pictures;
};

} // namespace painttest
