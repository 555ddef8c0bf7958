// The sums of a row's paint: where the text and the picture go, which
// rectangle the selection and focus frames take, which colours and which
// picture a state shows. All on integers; a division by two truncates
// toward zero. The drawing itself is the platform's.
#pragma once

#include <cstdint>

#include "outline/core/lbx.h"

namespace zk::lbx::paint {

// What a row's layout depends on.
struct RowInput {
    LbxRect row{};      // the row's rectangle (rcItem)
    uint32_t style = 0; // LbxChild.style
    int32_t indent = 0; // LbxChild.indent, in half average character widths
    int32_t ave = 0;    // tmAveCharWidth of the row's font
    int32_t tmHeight = 0;
    bool hasNode = false;  // an item of an outline
    int32_t level = 0;     // the node's level
    bool disabled = false; // LBX_ItemDisabled of an item
    bool hasPicture = false;
    int32_t picW = 0;
    int32_t picH = 0;
    int32_t textW = 0;
};

struct RowLayout {
    int32_t half = 0;     // ave / 2
    int32_t step = 0;     // width of one tree level
    int32_t indentPx = 0; // level * indent * half; 0 without a node
    int32_t gap = 0;      // between indent and picture: ave with a node, 5 flat, 0 without a picture
    int32_t textX = 0;
    int32_t textY = 0;
    LbxRect frame{}; // selection and focus
};

RowLayout LayoutRow(const RowInput &in);

// The text rectangle of hit tests and extents. Unlike the paint, the gap
// is the average width for a flat item too.
LbxRect TextRectangle(const RowInput &in);

// Right edge a fully painted row needs of the horizontal extent.
constexpr int32_t ExtentNeeded(int32_t textX, int32_t textW) { return textX + 4 + textW; }

// ---- colours and picture by state ----------------------------------------------

enum class TextColour { Item, HighlightText };
enum class BackColour { Background, Item, Highlight };
enum class PictureChoice { Normal, Selected, SelectedElseNormal };
enum class SelectedMark { Keep, Set, Clear };

struct StateLook {
    TextColour text = TextColour::Item;
    BackColour back = BackColour::Background;
    PictureChoice picture = PictureChoice::Normal;
    SelectedMark mark = SelectedMark::Keep; // LBX_ItemSelected after this paint
};

// odsSelected: the platform's ODS_SELECTED.
StateLook ChooseLook(uint32_t style, uint32_t itemFlags, bool odsSelected);

// ---- pictures ---------------------------------------------------------------------

struct PicturePlace {
    int32_t left = 0;
    int32_t top = 0;
    int32_t sourceTop = 0;   // bitmap: first line of the picture shown
    int32_t height = 0;      // lines drawn (a bitmap is cut to the row)
    bool fillColumn = false; // the picture's column takes the background first
};

PicturePlace PlaceBitmap(const LbxRect &row, uint32_t style, int32_t picW, int32_t picH, int32_t gap, int32_t indentPx);
PicturePlace PlaceIcon(const LbxRect &row, uint32_t style, int32_t picW, int32_t picH, int32_t gap, int32_t indentPx);

} // namespace zk::lbx::paint
