// The gallery's form: a top-level window laid out in two columns of
// sections, each row a call, its result and a mark (ok or FAIL), shown a
// page at a time.
#pragma once

#include <windows.h>
#include <string>

namespace gallery {

class Form {
public:
    Form() = default;
    ~Form();
    Form(const Form &) = delete;
    Form &operator=(const Form &) = delete;

    bool Create(HINSTANCE instance, const wchar_t *title);
    HWND Window() const { return window_; }
    HFONT Font() const { return font_; }
    static int ColumnWidth();

    // Later sections and rows go into this column (0 or 1).
    void Column(int index);
    void Section(const std::wstring &title);
    void Row(const std::wstring &label, const std::wstring &value, bool ok);
    // An area of the column's width for a control of the caller's own.
    RECT Reserve(int height);

    // Sizes the window to the tallest column, shows and activates it.
    void Show();
    // Empties the form for the next page of sections: every child window
    // goes, both columns start again at the top. The caller photographs the
    // page before.
    void NextPage();

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    HWND Child(const wchar_t *cls, const std::wstring &text, DWORD style, int x, int y, int width, int height, int id,
               HFONT font);

    HWND window_ = nullptr;
    HINSTANCE instance_ = nullptr;
    HFONT font_ = nullptr;
    HFONT bold_ = nullptr;
    int column_ = 0;
    int y_[2] = {0, 0};
    int nextId_ = 0;
};

} // namespace gallery
