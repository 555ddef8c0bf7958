#include "os/core/path_shorten.h"

namespace zk::os {

namespace {

constexpr std::u16string_view kSlashes = u"\\/";
constexpr std::u16string_view kEllipsis = u"...";

bool IsSlash(char16_t c) { return c == u'\\' || c == u'/'; }

// "\\server\share\" (either slash), "C:", or nothing.
size_t RootLength(std::u16string_view path) {
    if (path.size() >= 2 && IsSlash(path[0]) && path[0] == path[1]) {
        size_t end = 2;
        for (int part = 0; part < 2; ++part) {
            const size_t slash = path.find_first_of(kSlashes, end);
            end = slash == std::u16string_view::npos ? path.size() : slash + 1;
        }
        return end;
    }
    return path.size() >= 2 && path[1] == u':' ? 2 : 0;
}

} // namespace

std::u16string ShortenPath(std::u16string_view path, int width, const TextWidth &measure) {
    const bool endsDir = !path.empty() && IsSlash(path.back());
    if (measure.Of(path) <= width)
        return std::u16string(path);

    const size_t rootLength = RootLength(path);
    const std::u16string_view root = path.substr(0, rootLength);
    const std::u16string_view rest = path.substr(rootLength);
    std::u16string middle(rest), name;
    if (!endsDir) {
        size_t last = rest.rfind(u'\\');
        if (last == std::u16string_view::npos)
            last = rest.rfind(u'/');
        const size_t nameStart = last == std::u16string_view::npos ? 0 : last;
        middle = rest.substr(0, nameStart);
        name = rest.substr(nameStart);
    }

    std::u16string whole;
    const auto tooWide = [&] {
        whole.assign(root).append(middle).append(name);
        return measure.Of(whole) > width;
    };
    while (middle.size() >= 4 && tooWide()) {
        middle.resize(middle.size() - 4);
        const size_t slash = middle.find_last_of(kSlashes);
        middle.resize(slash == std::u16string::npos ? 0 : slash + 1);
        middle.append(kEllipsis);
    }
    if (!name.empty()) {
        while (name.size() >= 5 && tooWide()) {
            name.resize(name.size() - 4);
            name.append(kEllipsis);
        }
    }
    return whole.assign(root).append(middle).append(name);
}

} // namespace zk::os
