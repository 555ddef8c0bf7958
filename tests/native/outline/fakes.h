// Stand-ins for what the outline core asks of the platform: ASCII case
// rules and a row store that behaves as an adopted list box.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "outline/core/lbx_normalize.h"
#include "outline/core/lbx_rows.h"
#include "outline/core/lbx_tree.h"

using namespace zk::lbx;

namespace outlinetest {

inline char16_t Up(char16_t c) { return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 32) : c; }
inline char16_t Down(char16_t c) { return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c; }

class AsciiRules final : public LbxCaseRules {
public:
    void Upper(char16_t *text, std::size_t count) override {
        for (std::size_t i = 0; i < count; ++i)
            text[i] = Up(text[i]);
    }
    void Lower(char16_t *text, std::size_t count) override {
        for (std::size_t i = 0; i < count; ++i)
            text[i] = Down(text[i]);
    }
    bool IsLower(char16_t c) override { return c >= u'a' && c <= u'z'; }
    int CompareNoCase(const char16_t *a, const char16_t *b) override {
        for (;; ++a, ++b) {
            const char16_t x = Down(*a), y = Down(*b);
            if (x != y)
                return x < y ? -1 : 1;
            if (!x)
                return 0;
        }
    }
};

// Rows as a list box keeps them; a removal outside a keep-items section
// frees the item as the delete notification at the parent does.
class FakeRows final : public LbxRows {
public:
    std::vector<std::uintptr_t> rows;
    bool combo = false, multi = false, keeping = false, parentKnown = true;
    uint32_t style = LBX_StyleOwnerDraw;
    int32_t refuseInsertAt = -100; // an insert at this row is refused
    int32_t caret = -2, curSel = -2, top = -2;
    int32_t visibleFirst = 0, visibleLast = 9;
    std::vector<int32_t> selected;
    std::vector<std::string> log; // painting and erase switches in order

    std::uintptr_t Data(int32_t row) override {
        return row >= 0 && row < static_cast<int32_t>(rows.size()) ? rows[static_cast<std::size_t>(row)] : kNoRow;
    }
    int32_t Insert(int32_t row, LbxItem *item) override {
        if (row == refuseInsertAt)
            return -1;
        if (row < 0 || row > static_cast<int32_t>(rows.size()))
            row = static_cast<int32_t>(rows.size());
        rows.insert(rows.begin() + row, reinterpret_cast<std::uintptr_t>(item));
        return row;
    }
    int32_t Delete(int32_t row) override {
        if (row < 0 || row >= static_cast<int32_t>(rows.size()))
            return 0;
        const std::uintptr_t word = rows[static_cast<std::size_t>(row)];
        rows.erase(rows.begin() + row);
        if (!keeping && LbxIsItem(word)) {
            auto *item = reinterpret_cast<LbxItem *>(word);
            if (LbxNode *node = item->node) {
                LbxFreeDescendents(node);
                LbxFreeChild(node);
            } else {
                delete item;
            }
        }
        return 1;
    }
    bool BeginKeepItems() override { return parentKnown && (keeping = true); }
    void EndKeepItems() override { keeping = false; }
    bool IsCombo() override { return combo; }
    bool IsMultiSelect() override { return multi; }
    uint32_t Style() override { return style; }
    void SetSel(int32_t row, bool on) override {
        if (on)
            selected.push_back(row);
    }
    void SetCurSel(int32_t row) override { curSel = row; }
    void SetCaret(int32_t row) override { caret = row; }
    void SetTopIndex(int32_t row) override { top = row; }
    int32_t VisibleRange(int32_t *first, int32_t *last) override {
        *first = visibleFirst;
        *last = visibleLast;
        return visibleLast - visibleFirst + 1;
    }
    void Redraw(bool on) override { log.push_back(on ? "on" : "off"); }
    void RedrawOnNoErase() override { log.push_back("on-noerase"); }

    LbxNode *NodeAt(int32_t row) { return LbxRowNode(*this, row); }
};

// A small outline under a root: nodes by name, linked with the connector
// bits the loading functions give.
class Tree {
public:
    LbxNode *root = LbxNewRoot(nullptr);

    ~Tree() { LbxFreeTree(root); }

    LbxNode *Add(LbxNode *parent, const char16_t *text, uint32_t flags = 0) {
        auto *node = new LbxNode();
        auto *item = new LbxItem();
        node->item = item;
        item->node = node;
        item->text.assign(text);
        item->flags = flags;
        node->level = parent->level + 1;
        node->parent = parent;
        node->prev = parent->lastChild;
        if (parent->lastChild) {
            parent->lastChild->next = node;
            parent->lastChild->item->flags |= LBX_ItemHasNext;
            item->flags |= 0x00070000u;
        } else {
            parent->firstChild = node;
            item->flags |= 0x00090000u;
        }
        if (node->level == 0)
            item->flags &= ~LBX_ItemLeftLine;
        parent->lastChild = node;
        parent->item->flags |= LBX_ItemHasChildren | LBX_ItemPlus;
        return node;
    }

    static std::uintptr_t Word(const LbxNode *node) { return reinterpret_cast<std::uintptr_t>(node->item); }
};

inline std::u16string TextOf(FakeRows &rows, int32_t row) {
    LbxItem *item = LbxRowItem(rows, row);
    return item ? std::u16string(item->text.view()) : u"?";
}

// The texts of all rows, joined by blanks.
inline std::u16string Texts(FakeRows &rows) {
    std::u16string out;
    for (int32_t r = 0; r < static_cast<int32_t>(rows.rows.size()); ++r)
        out += (r ? u" " : u"") + TextOf(rows, r);
    return out;
}

} // namespace outlinetest
