#include "menu_support.h"

#include <winternl.h>

#include <cstdint>

#include "zkt_bitmap.h"

namespace menutest {

FrameMenu MakeFrameMenu() {
    FrameMenu m;
    m.bar = CreateMenu();
    m.file = CreatePopupMenu();
    m.edit = CreatePopupMenu();
    m.window = CreatePopupMenu();
    AppendMenuW(m.file, MF_STRING, kNew, L"&New\tCtrl+N");
    AppendMenuW(m.file, MF_STRING, kOpen, L"&Open...");
    AppendMenuW(m.file, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(m.file, MF_STRING, kExit, L"E&xit");
    AppendMenuW(m.edit, MF_STRING, static_cast<UINT_PTR>(static_cast<UINT>(kUndo)), L"&Undo");
    AppendMenuW(m.edit, MF_STRING, kCopy, L"&Copy");
    AppendMenuW(m.window, MF_STRING, kNewWindow, L"&New Window");
    AppendMenuW(m.bar, MF_POPUP, reinterpret_cast<UINT_PTR>(m.file), L"&File");
    AppendMenuW(m.bar, MF_POPUP, reinterpret_cast<UINT_PTR>(m.edit), L"&Edit");
    AppendMenuW(m.bar, MF_POPUP, reinterpret_cast<UINT_PTR>(m.window), L"&Window");
    AppendMenuW(m.bar, MF_STRING, kHelp, L"&Help");
    return m;
}

std::vector<std::wstring> TakeLog(HWND window) {
    std::vector<wchar_t> buffer(8192);
    std::vector<std::wstring> lines;
    if (ZkHostFrameTakeLog(window, buffer.data(), static_cast<int32_t>(buffer.size())) <= 0)
        return lines;
    std::wstring text(buffer.data());
    for (size_t start = 0, end; (end = text.find(L'\n', start)) != std::wstring::npos; start = end + 1)
        lines.push_back(text.substr(start, end - start));
    return lines;
}

std::wstring Take(HostStr text) {
    int32_t size = 0;
    const wchar_t *p = text ? HostStrLock(text, &size) : nullptr;
    std::wstring out = p ? p : L"<no string>";
    if (text)
        ZkHostStrRelease(text);
    return out;
}

std::wstring PlatformText(HMENU menu, UINT item, UINT by) {
    wchar_t text[256] = L"";
    GetMenuStringW(menu, item, text, 256, by);
    return text;
}

int GdiObjects() {
    // The process's view of the GDI handle table, as the system shares it.
    struct Entry {
        uint64_t object;
        uint32_t owner;
        uint16_t unique;
        uint8_t type;
        uint8_t flags;
        uint64_t user;
    };
    static_assert(sizeof(Entry) == 24);
    auto *peb = reinterpret_cast<uint8_t *>(NtCurrentTeb()->ProcessEnvironmentBlock);
    const auto *table = *reinterpret_cast<Entry *const *>(peb + 0xF8);
    if (!table)
        return -1;
    int count = 0;
    for (int i = 0; i < 0x10000; ++i)
        count += table[i].type != 0;
    return count;
}

int HeapBlocks() {
    HANDLE heap = GetProcessHeap();
    PROCESS_HEAP_ENTRY entry{};
    int count = 0;
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
        count += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
    HeapUnlock(heap);
    return count;
}

void MenuTest::SetUp() {}

void MenuTest::TearDown() {
    for (HWND w : windows_)
        if (IsWindow(w))
            DestroyWindow(w);
    for (ZelPicHandle p : pictures_)
        ZelPicFree(p);
}

HWND MenuTest::Keep(HWND window) {
    windows_.push_back(window);
    return window;
}

HWND MenuTest::Frame(int32_t kind, HMENU menu, uint32_t options, HWND parent) {
    HWND w = ZkHostFrameCreate(kind, parent, L"frame", menu, options);
    EXPECT_TRUE(w) << "no host frame of kind " << kind;
    return Keep(w);
}

ZelPicHandle MenuTest::Picture(COLORREF ink, int size) {
    zkt::Bitmap image(size, size);
    image.fill(RGB(255, 255, 255));
    HBRUSH brush = CreateSolidBrush(ink);
    const RECT square{2, 2, size - 2, size - 2};
    FillRect(image.dc(), &square, brush);
    DeleteObject(brush);
    const std::vector<unsigned char> bytes = image.BmpBytes();
    const ZelPicHandle picture =
        ZelPicLoad(PIC_LoadMemory | PIC_FormatBitmap, reinterpret_cast<const wchar_t *>(bytes.data()), L"");
    EXPECT_NE(picture, 0);
    pictures_.push_back(picture);
    return picture;
}

} // namespace menutest
