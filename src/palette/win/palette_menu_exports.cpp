// Exports of the application's menu entries.
#include <cstring>
#include <memory>
#include <string>

#include "frame/core/errors.h"
#include "palette/win/palette_exports.h"

using zk::GuardedControlText;
using zk::pal::CColorPalette;
using zk::pal::PaletteOf;
using zk::pal::SPaletteMenu;

namespace {

// A new entry with a copy of the text; no text is the empty one.
std::unique_ptr<SPaletteMenu> Entry(const wchar_t *text, uint16_t id) {
    const wchar_t *chars = text ? text : L"";
    return std::make_unique<SPaletteMenu>(std::u16string(chars, chars + std::wcslen(chars)), id);
}

} // namespace

extern "C" {

int32_t ZKAPI ZelPalMenuAdd(ZelPalControl control, const wchar_t *text, uint16_t id) {
    return GuardedControlText(L"ZelPalMenuAdd()", L"Unable to add menu item.", -1, PaletteOf(control),
                              [&](CColorPalette &p) { return p.Model().AddMenu(Entry(text, id)); });
}

int32_t ZKAPI ZelPalMenuClear(ZelPalControl control) {
    return GuardedControlText(L"ZelPalMenuClear()", L"Unable to clear menu list.", 0, PaletteOf(control),
                              [](CColorPalette &p) {
                                  p.Model().ClearMenus();
                                  return 1;
                              });
}

// The internal entry is not the application's: an index at or beyond the
// application's count fails, though "Other Color..." shows there.
int32_t ZKAPI ZelPalMenuGet(ZelPalControl control, int32_t index, HostStr *text, uint16_t *id) {
    return GuardedControlText(L"ZelPalMenuGet()", L"Unable to retrieve menu item.", 0, PaletteOf(control),
                              [&](CColorPalette &p) {
                                  if (!text || !id)
                                      throw zk::InvalidArgException();
                                  const SPaletteMenu *entry = p.Model().GetMenu(index);
                                  if (!entry)
                                      throw zk::UserException();
                                  const size_t length = entry->text.size();
                                  if (length > 0x3FFFFFFE)
                                      throw zk::MemoryException();
                                  const auto bytes = static_cast<int32_t>(2 * length + 2);
                                  // A failed allocation leaves the caller's slot as it was.
                                  if (!HostStrAlloc(text, bytes))
                                      throw zk::MemoryException();
                                  int32_t size = 0;
                                  wchar_t *buffer = HostStrLock(*text, &size);
                                  if (!buffer || size < bytes)
                                      throw zk::MemoryException();
                                  for (size_t i = 0; i < length; ++i)
                                      buffer[i] = static_cast<wchar_t>(entry->text[i]);
                                  buffer[length] = 0;
                                  *id = entry->id;
                                  return 1;
                              });
}

int32_t ZKAPI ZelPalMenuGetAll(ZelPalControl control, HostArray texts, HostArray ids) {
    return GuardedControlText(
        L"ZelPalMenuGetAll()", L"Unable to retrieve menu list.", 0, PaletteOf(control), [&](CColorPalette &p) {
            const int32_t count = p.Model().MenuCount();
            if (count <= 0)
                return count;
            // Both arrays are known before any string is made for them.
            if (!HostArraySetUpperBound(texts, 1, count - 1) || !HostArraySetUpperBound(ids, 1, count - 1))
                throw zk::InvalidArgException();
            for (int32_t i = 0; i < count; ++i) {
                HostStr text = 0;
                uint16_t id = 0;
                if (ZelPalMenuGet(control, i, &text, &id) != 1)
                    throw zk::MemoryException();
                HostNumber number{};
                HostNumberFromUShort(id, &number);
                HostArraySetString(texts, text, i);
                HostArraySetNumber(ids, &number, i);
            }
            return count;
        });
}

int32_t ZKAPI ZelPalMenuInsert(ZelPalControl control, int32_t index, const wchar_t *text, uint16_t id) {
    return GuardedControlText(L"ZelPalMenuInsert()", L"Unable to insert menu item.", 0, PaletteOf(control),
                              [&](CColorPalette &p) {
                                  p.Model().InsertMenu(index, Entry(text, id));
                                  return 1;
                              });
}

int32_t ZKAPI ZelPalMenuRemove(ZelPalControl control, int32_t index) {
    return GuardedControlText(L"ZelPalMenuRemove()", L"Unable to remove menu item.", 0, PaletteOf(control),
                              [&](CColorPalette &p) { return p.Model().RemoveMenu(index); });
}

int32_t ZKAPI ZelPalMenuSet(ZelPalControl control, int32_t index, const wchar_t *text, uint16_t id) {
    return GuardedControlText(L"ZelPalMenuSet()", L"Unable to assign menu item.", 0, PaletteOf(control),
                              [&](CColorPalette &p) {
                                  p.Model().SetMenu(index, Entry(text, id)); // the old entry goes
                                  return 1;
                              });
}

int32_t ZKAPI ZelPalMenuSetAll(ZelPalControl control, HostArray texts, HostArray ids) {
    return GuardedControlText(
        L"ZelPalMenuSetAll()", L"Unable to assign menu list.", 0, PaletteOf(control), [&](CColorPalette &p) {
            int32_t highTexts = -1, highIds = -1;
            if (!HostArrayGetUpperBound(texts, 1, &highTexts) || !HostArrayGetUpperBound(ids, 1, &highIds))
                throw zk::InvalidArgException();
            // Texts without ids or ids without texts: nothing changes.
            if (highTexts != highIds)
                throw zk::UserException();
            p.Model().ClearMenus();
            int32_t assigned = 0;
            for (int32_t i = 0; i <= highTexts; ++i) {
                HostNumber number{};
                HostArrayGetNumber(ids, &number, i);
                uint16_t id = 0;
                HostNumberToUShort(&number, &id);
                HostStr text = 0;
                HostArrayGetString(texts, &text, i);
                int32_t size = 0;
                const wchar_t *chars = HostStrLock(text, &size);
                if (!chars)
                    throw zk::MemoryException();
                if (ZelPalMenuSet(control, i, chars, id) == 1)
                    ++assigned;
            }
            return assigned;
        });
}

} // extern "C"
