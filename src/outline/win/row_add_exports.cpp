// The add and insert exports of rows with a colour, pictures or a font.
#include <utility>

#include "frame/win/guard.h"
#include "outline/win/pic.h"
#include "outline/win/row_exports.h"

using namespace zk::lbx;

namespace {

// A row add under the exports' frame: nothing thrown gets out, a failure is -1.
template <class Make>
int32_t Add(Make &&make) {
    return zk::Quietly(std::forward<Make>(make), [] { return int32_t{-1}; });
}

// Pictures from handles: 0 is none; a handle that is no live picture fails.
bool Pictures(ZelPicHandle normal, ZelPicHandle selected, RowFields &fields) {
    fields.normal = PicFromHandle(normal);
    fields.selected = PicFromHandle(selected);
    return (!normal || fields.normal) && (!selected || fields.selected);
}

int32_t AddPicture(HWND window, int32_t row, const wchar_t *text, ZelPicHandle normal, ZelPicHandle selected,
                   int32_t value) {
    RowFields fields;
    if (!Pictures(normal, selected, fields)) {
        return -1;
    }
    fields.value = value;
    return AddRow(window, row, text, fields);
}

int32_t AddFont(HWND window, int32_t row, const wchar_t *text, HFONT font, int32_t value) {
    RowFields fields;
    fields.font = font;
    fields.value = value;
    return AddRow(window, row, text, fields);
}

int32_t AddColour(HWND window, int32_t row, const wchar_t *text, COLORREF colour, int32_t value) {
    RowFields fields = RowFields::Colour(colour);
    fields.value = value;
    return AddRow(window, row, text, fields);
}

} // namespace

extern "C" {

int32_t ZKAPI ZelListAddColor(HWND window, const wchar_t *text, COLORREF color) {
    return Add([&] { return AddColour(window, -2, text, color, 0); });
}

int32_t ZKAPI ZelListAddColorValue(HWND window, const wchar_t *text, COLORREF color, int32_t value) {
    return Add([&] { return AddColour(window, -2, text, color, value); });
}

int32_t ZKAPI ZelListInsertColor(HWND window, int32_t row, const wchar_t *text, COLORREF color) {
    return Add([&] { return AddColour(window, row, text, color, 0); });
}

int32_t ZKAPI ZelListInsertColorValue(HWND window, int32_t row, const wchar_t *text, COLORREF color, int32_t value) {
    return Add([&] { return AddColour(window, row, text, color, value); });
}

int32_t ZKAPI ZelListAddPicture(HWND window, const wchar_t *text, ZelPicHandle normal, ZelPicHandle selected) {
    return Add([&] { return AddPicture(window, -2, text, normal, selected, 0); });
}

int32_t ZKAPI ZelListAddPictureValue(HWND window, const wchar_t *text, ZelPicHandle normal, ZelPicHandle selected,
                                     int32_t value) {
    return Add([&] { return AddPicture(window, -2, text, normal, selected, value); });
}

int32_t ZKAPI ZelListInsertPicture(HWND window, int32_t row, const wchar_t *text, ZelPicHandle normal,
                                   ZelPicHandle selected) {
    return Add([&] { return AddPicture(window, row, text, normal, selected, 0); });
}

int32_t ZKAPI ZelListInsertPictureValue(HWND window, int32_t row, const wchar_t *text, ZelPicHandle normal,
                                        ZelPicHandle selected, int32_t value) {
    return Add([&] { return AddPicture(window, row, text, normal, selected, value); });
}

int32_t ZKAPI ZelListAddFont(HWND window, const wchar_t *text, HFONT font) {
    return Add([&] { return AddFont(window, -2, text, font, 0); });
}

int32_t ZKAPI ZelListAddFontValue(HWND window, const wchar_t *text, HFONT font, int32_t value) {
    return Add([&] { return AddFont(window, -2, text, font, value); });
}

int32_t ZKAPI ZelListInsertFont(HWND window, int32_t row, const wchar_t *text, HFONT font) {
    return Add([&] { return AddFont(window, row, text, font, 0); });
}

int32_t ZKAPI ZelListInsertFontValue(HWND window, int32_t row, const wchar_t *text, HFONT font, int32_t value) {
    return Add([&] { return AddFont(window, row, text, font, value); });
}

} // extern "C"
