// A child window that shows the library's own art as loaded from the DLL:
// the palette bitmaps twice their size, the icon images as they are.
#pragma once

#include <windows.h>
#include <string>
#include <vector>

namespace gallery {

class ArtPanel {
public:
    ArtPanel() = default;
    ~ArtPanel();
    ArtPanel(const ArtPanel &) = delete;
    ArtPanel &operator=(const ArtPanel &) = delete;

    bool Create(HWND parent, const RECT &area, HFONT font);
    HWND Window() const { return window_; }

    // The panel takes ownership of the bitmap or icon; a null one is shown
    // as missing.
    void AddBitmap(const std::wstring &name, HBITMAP bitmap);
    void AddIcon(const std::wstring &name, HICON icon, int size);

    // Height needed for `count` items in a panel of `width` pixels.
    static int HeightFor(int count, int width);

private:
    struct Item {
        std::wstring name;
        HBITMAP bitmap = nullptr;
        HICON icon = nullptr;
        int size = 0;
    };
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Paint(HWND window, HDC dc) const;
    void PaintItem(HDC dc, const Item &item, const RECT &cell) const;

    HWND window_ = nullptr;
    HFONT font_ = nullptr;
    std::vector<Item> items_;
};

} // namespace gallery
