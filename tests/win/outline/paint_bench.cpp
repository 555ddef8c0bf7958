#include "paint_bench.h"

#include "frame/win/propcache.h"

namespace painttest {

void PaintBench::SetUp() {
    list = form.AddListBox(1, {0, 0, kRowWidth, 150}, LBS_NOTIFY | LBS_OWNERDRAWVARIABLE | WS_VSCROLL);
    font = outlinetest::PaintFont();
    SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    record = LocalAlloc(LMEM_MOVEABLE | LMEM_ZEROINIT, sizeof(LbxChild));
    ASSERT_NE(record, nullptr);
    zk::PropSet(list, L"ZK:ChildLbx", record);
    SetStyle(LBX_StyleOwnerDraw);
    root = new LbxNode();
    root->item = new LbxItem();
    root->item->node = root;
    root->level = -1;
}

void PaintBench::TearDown() {
    zk::PropRemove(list, L"ZK:ChildLbx");
    LocalFree(record);
    if (stops)
        LocalFree(stops);
    for (LbxNode *n : nodes) {
        delete n->item;
        delete n;
    }
    for (LbxItem *i : items)
        delete i;
    delete root->item;
    delete root;
    for (PIC *p : pictures)
        delete p;
    SendMessageW(list, WM_SETFONT, 0, FALSE);
    DeleteObject(font);
}

void PaintBench::SetStyle(uint32_t style, int32_t indent) {
    outlinetest::EditChildRecord(list, [&](LbxChild &c) {
        c.style = style | LBX_StyleOwnerDraw;
        c.indent = indent;
    });
}

void PaintBench::SetTabs(std::vector<int32_t> positions, int32_t count) {
    if (!positions.empty()) {
        stops = LocalAlloc(LMEM_MOVEABLE, positions.size() * sizeof(int32_t));
        memcpy(LocalLock(stops), positions.data(), positions.size() * sizeof(int32_t));
        LocalUnlock(stops);
    }
    outlinetest::EditChildRecord(list, [&](LbxChild &c) {
        c.tabCount = count;
        c.tabStops = stops;
    });
}

LbxItem *PaintBench::Item(const wchar_t *text, COLORREF colour, uint32_t flags) {
    auto *item = new LbxItem();
    item->text.assign(reinterpret_cast<const char16_t *>(text));
    item->color = colour;
    item->flags = flags;
    item->font = font;
    items.push_back(item);
    return item;
}

LbxNode *PaintBench::Node(LbxNode *parent, const wchar_t *text) {
    parent = parent ? parent : root;
    auto *node = new LbxNode();
    node->item = new LbxItem();
    node->item->node = node;
    node->item->text.assign(reinterpret_cast<const char16_t *>(text));
    node->item->font = font;
    node->parent = parent;
    node->level = parent->level + 1;
    node->prev = parent->lastChild;
    if (parent->lastChild)
        parent->lastChild->next = node;
    else
        parent->firstChild = node;
    parent->lastChild = node;
    nodes.push_back(node);
    return node;
}

PIC *PaintBench::Picture() {
    HDC screen = GetDC(nullptr);
    HDC dc = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, 16, 16);
    HGDIOBJ old = SelectObject(dc, bitmap);
    RECT all{0, 0, 16, 16}, square{4, 4, 12, 12};
    HBRUSH key = CreateSolidBrush(kKey);
    FillRect(dc, &all, key);
    FillRect(dc, &square, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    DeleteObject(key);
    HBITMAP mask = CreateBitmap(16, 16, 1, 1, nullptr);
    HDC maskDc = CreateCompatibleDC(screen);
    HGDIOBJ oldMask = SelectObject(maskDc, mask);
    SetBkColor(dc, kKey);
    BitBlt(maskDc, 0, 0, 16, 16, dc, 0, 0, SRCCOPY);
    SelectObject(maskDc, oldMask);
    SelectObject(dc, old);
    DeleteDC(maskDc);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    auto *pic = new PIC();
    pic->type = PIC_TypeBitmap;
    pic->width = pic->height = 16;
    pic->bitmap = bitmap;
    pic->mask = mask;
    pictures.push_back(pic);
    return pic;
}

bool PaintBench::Draw(const void *data, UINT action, UINT state, RECT row, LRESULT *answer) {
    DRAWITEMSTRUCT r{};
    r.CtlType = ODT_LISTBOX;
    r.CtlID = 1;
    r.itemID = 0;
    r.itemAction = action;
    r.itemState = state;
    r.hwndItem = list;
    r.hDC = canvas.dc();
    r.rcItem = row;
    r.itemData = reinterpret_cast<ULONG_PTR>(data);
    LRESULT result = -5;
    const bool handled = LbxDrawItem(form, &r, &result);
    if (answer)
        *answer = result;
    return handled;
}

int PaintBench::FirstColumn(COLORREF colour, int fromX, int toX) const {
    for (int x = fromX; x < toX; ++x)
        for (int y = 0; y < kRowHeight; ++y)
            if (canvas.pixel(x, y) == colour)
                return x;
    return -1;
}

} // namespace painttest
