// ZelPathShorten: the sums of os/path_shorten measured in a device context.
#include "os/core/path_shorten.h"
#include "os/win/files.h"

namespace {

class DcWidth final : public zk::os::TextWidth {
public:
    explicit DcWidth(HDC dc) : dc_(dc) {}
    int Of(std::u16string_view text) const override {
        SIZE size{};
        GetTextExtentPoint32W(dc_, reinterpret_cast<const wchar_t *>(text.data()), static_cast<int>(text.size()),
                              &size);
        return size.cx;
    }

private:
    HDC dc_;
};

} // namespace

std::wstring ZelPathShorten(HDC dc, const RECT &rectangle, std::wstring_view path) {
    const std::u16string shortened = zk::os::ShortenPath({reinterpret_cast<const char16_t *>(path.data()), path.size()},
                                                         rectangle.right - rectangle.left, DcWidth(dc));
    return std::wstring(reinterpret_cast<const wchar_t *>(shortened.data()), shortened.size());
}
