#include "menu/core/menu_model.h"

#include <cstring>

namespace zk::menu {

void CMenuStack::AddHead(int32_t id) {
    items_.reserve(items_.size() + 1);
    items_.push_back(new CMenuIDData(static_cast<uint32_t>(id)));
}

void CMenuStack::RemoveHead() {
    if (items_.empty())
        return;
    delete items_.back();
    items_.pop_back();
}

void CMenuStack::RemoveAll() {
    for (CMenuIDData *item : items_)
        delete item;
    items_.clear();
}

std::u16string ReplaceTabMark(std::u16string_view text) {
    std::u16string out(text);
    const size_t at = out.find(u"\\t");
    if (at != std::u16string::npos)
        out.replace(at, 2, 1, u'\t');
    return out;
}

TabParts SplitAtTab(std::u16string_view text) {
    const size_t at = text.find(u'\t');
    if (at == std::u16string_view::npos)
        return {text, {}, false};
    return {text.substr(0, at), text.substr(at + 1), true};
}

bool MnemonicMatches(std::u16string_view text, char16_t lower, char16_t upper) {
    const size_t at = text.find(u'&');
    if (at == std::u16string_view::npos || at + 1 >= text.size())
        return false;
    const char16_t next = text[at + 1];
    return next == lower || next == upper;
}

int32_t FindRecord(const MenuRecord *records, int32_t count, const void *menu, int32_t id) {
    for (int32_t i = 0; i < count; ++i)
        if (records[i].menu == menu && records[i].id == id)
            return i;
    return -1;
}

int32_t FindRecordById(const MenuRecord *records, int32_t count, int32_t id) {
    for (int32_t i = 0; i < count; ++i)
        if (records[i].id == id)
            return i;
    return -1;
}

void RemoveRecord(MenuRecord *records, int32_t count, int32_t index) {
    if (index < 0 || index >= count)
        return;
    std::memmove(static_cast<void *>(records + index), records + index + 1,
                 static_cast<size_t>(count - index - 1) * sizeof(MenuRecord));
    std::memset(static_cast<void *>(records + count - 1), 0, sizeof(MenuRecord));
}

std::vector<int32_t> CommandTargets(const MenuRecord *records, int32_t count, uint16_t low) {
    std::vector<int32_t> ids;
    for (int32_t i = 0; i < count; ++i) {
        const int32_t id = records[i].id; // a packed field: copied, never bound
        if (static_cast<uint16_t>(id) == low && (records[i].flags & kRecordReported))
            ids.push_back(id);
    }
    return ids;
}

} // namespace zk::menu
