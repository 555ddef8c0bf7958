// Exports of colours, roles, the focus, the recent colours and style bits.
#include <memory>

#include "frame/core/errors.h"
#include "palette/win/palette_exports.h"

using zk::GuardedControlText;
using zk::pal::CColorPalette;
using zk::pal::PaletteOf;
using zk::pal::SPaletteColor;

extern "C" {

int32_t ZKAPI ZelPalColorGet(ZelPalControl control, int32_t role) {
    return GuardedControlText(L"ZelPalColorGet()", L"Unable to retrieve color for specified role.", -1,
                              PaletteOf(control),
                              [&](CColorPalette &p) { return static_cast<int32_t>(p.GetRoleColor(role)); });
}

int32_t ZKAPI ZelPalColorSet(ZelPalControl control, int32_t role, COLORREF color) {
    return GuardedControlText(L"ZelPalColorSet()", L"Unable to assign color to specified role.", -1, PaletteOf(control),
                              [&](CColorPalette &p) { return static_cast<int32_t>(p.SetRoleColor(role, color, 1)); });
}

int32_t ZKAPI ZelPalColorMainSet(ZelPalControl control, int32_t index, COLORREF color) {
    return GuardedControlText(
        L"ZelPalColorMainSet()", L"Unable to assign palette color.", -1, PaletteOf(control), [&](CColorPalette &p) {
            const auto old = p.Model().SetMainColor(index, std::make_unique<SPaletteColor>(color));
            return old ? static_cast<int32_t>(old->colour) : -1;
        });
}

// Elements 0 to the upper bound, whatever the array's lower bound.
int32_t ZKAPI ZelPalColorMainSetAll(ZelPalControl control, HostArray colors) {
    return GuardedControlText(L"ZelPalColorMainSetAll()", L"Unable to assign all palette colors.", -1,
                              PaletteOf(control), [&](CColorPalette &p) {
                                  int32_t high = -1;
                                  // An array the host does not know changes nothing.
                                  if (!HostArrayGetUpperBound(colors, 1, &high))
                                      throw zk::InvalidArgException();
                                  p.Model().ClearMainColors();
                                  const int32_t count = high < 0 ? 0 : high + 1;
                                  for (int32_t i = 0; i < count; ++i) {
                                      HostNumber number{};
                                      HostArrayGetNumber(colors, &number, i);
                                      uint32_t colour = 0;
                                      HostNumberToULong(&number, &colour);
                                      ZelPalColorMainSet(control, i, colour);
                                  }
                                  p.Model().LayoutChanged(1);
                                  return count;
                              });
}

int32_t ZKAPI ZelPalColorPaletteGet(ZelPalControl control, int32_t palette, int32_t index) {
    return GuardedControlText(L"ZelPalColorPaletteGet()", L"Unable to retrieve palette color.", -1, PaletteOf(control),
                              [&](CColorPalette &p) {
                                  const SPaletteColor *item = p.Model().GetColorItem(palette, index);
                                  return item ? static_cast<int32_t>(item->colour) : -1;
                              });
}

// Any palette but 0 counts the recent colours; each element is read as
// ZelPalColorPaletteGet reads it with the palette given.
int32_t ZKAPI ZelPalColorPaletteGetAll(ZelPalControl control, int32_t palette, HostArray colors) {
    return GuardedControlText(L"ZelPalColorPaletteGetAll()", L"Unable to retrieve all palette colors.", -1,
                              PaletteOf(control), [&](CColorPalette &p) {
                                  const int32_t count =
                                      palette != PALP_Main ? p.Model().RecentCount() : p.Model().MainCount();
                                  if (count <= 0)
                                      return count;
                                  if (!HostArraySetUpperBound(colors, 1, count - 1))
                                      throw zk::InvalidArgException();
                                  for (int32_t i = 0; i < count; ++i) {
                                      HostNumber number{};
                                      HostNumberFromLong(ZelPalColorPaletteGet(control, palette, i), &number);
                                      HostArraySetNumber(colors, &number, i);
                                  }
                                  return count;
                              });
}

int32_t ZKAPI ZelPalFocusGet(ZelPalControl control, int32_t *zone, int32_t *index) {
    return GuardedControlText(L"ZelPalFocusGet()", L"Unable to retrieve current focus.", 0, PaletteOf(control),
                              [&](CColorPalette &p) {
                                  if (!zone || !index)
                                      throw zk::InvalidArgException();
                                  *zone = p.Model().FocusZone();
                                  *index = p.Model().FocusIndex();
                                  return 1;
                              });
}

int32_t ZKAPI ZelPalFocusSet(ZelPalControl control, int32_t zone, int32_t index) {
    return GuardedControlText(L"ZelPalFocusSet()", L"Unable to assign new focus.", 0, PaletteOf(control),
                              [&](CColorPalette &p) { return p.Model().SetFocusCell(index, zone, 1); });
}

int32_t ZKAPI ZelPalMRUClear(ZelPalControl control) {
    return GuardedControlText(L"ZelPalMRUClear()", L"Unable to clear most recently used palette.", 0,
                              PaletteOf(control), [](CColorPalette &p) {
                                  p.Model().ClearRecentColors();
                                  return 1;
                              });
}

int32_t ZKAPI ZelPalMRUMaxGet(ZelPalControl control) {
    return GuardedControlText(L"ZelPalMRUMaxGet()", L"Unable to retrieve most recently used palette maximum.", -1,
                              PaletteOf(control), [](CColorPalette &p) { return p.Model().RecentMax(); });
}

int32_t ZKAPI ZelPalMRUMaxSet(ZelPalControl control, int32_t maximum) {
    return GuardedControlText(L"ZelPalMRUMaxSet()", L"Unable to assign most recently used palette maximum.", -1,
                              PaletteOf(control), [&](CColorPalette &p) { return p.Model().SetRecentMax(maximum); });
}

int32_t ZKAPI ZelPalStyleGet(ZelPalControl control) {
    return GuardedControlText(L"ZelPalStyleGet()", L"Unable to retrieve style bits.", 0, PaletteOf(control),
                              [](CColorPalette &p) { return static_cast<int32_t>(p.Model().GetStyle()); });
}

int32_t ZKAPI ZelPalStyleSet(ZelPalControl control, int32_t mask, int32_t value) {
    return GuardedControlText(
        L"ZelPalStyleSet()", L"Unable to assign style bits.", 0, PaletteOf(control),
        [&](CColorPalette &p) { return static_cast<int32_t>(p.Model().SetStyle(static_cast<uint32_t>(mask), value)); });
}

} // extern "C"
