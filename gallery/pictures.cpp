#include "pictures.h"

#include "report.h"

namespace gallery {

void Pictures::Save(const std::wstring &name, const Picture &picture) {
    if (!enabled_)
        return;
    const std::wstring path = folder_ + L"\\" + name + L".bmp";
    const std::wstring label = L"picture " + name;
    if (picture.Empty()) {
        report_.LogCheck(label, L"not captured", false);
        return;
    }
    const std::wstring size = std::to_wstring(picture.width) + L"x" + std::to_wstring(picture.height);
    if (picture.Uniform()) {
        report_.LogCheck(label, size + L", all one colour", false, L"a drawn window");
        return;
    }
    const bool written = WriteBmp24(path, picture);
    report_.LogCheck(label, size + L" " + path, written, L"a written file");
}

} // namespace gallery
