#include "os/core/pathmask.h"

namespace zk::os {

namespace {

constexpr char16_t kBackslash = u'\\';

bool HasDrivePrefix(std::u16string_view path) { return path.size() >= 2 && path[1] == u':'; }

} // namespace

std::u16string ApplyMask(std::u16string_view name, std::u16string_view mask) {
    std::u16string out;
    while (!mask.empty()) {
        const char16_t c = mask.front();
        if (c == u'*') {
            const size_t nameDot = name.find(u'.');
            const size_t maskDot = mask.find(u'.');
            // A "*" takes the name up to its first dot and leaves the rest to
            // the mask's own dot. With no dot left in the mask there is
            // nothing to hand the rest to ("*" on abc.txt, or the second "*"
            // of "*.*" on a.b.c): taken literally neither text would shrink
            // and the loop would not end. The "*" then takes the whole rest
            // of the name and ends the mask, as it does on a name without a
            // dot, so "*" copies names unchanged.
            if (nameDot == std::u16string_view::npos || maskDot == std::u16string_view::npos) {
                out.append(name);
                break;
            }
            out.append(name.substr(0, nameDot));
            name.remove_prefix(nameDot);
            mask.remove_prefix(maskDot);
        } else if (c == u'?') {
            if (!name.empty() && name.front() != u'.') {
                out.push_back(name.front());
                name.remove_prefix(1);
            }
            mask.remove_prefix(1);
        } else if (c == u'.') {
            out.push_back(u'.');
            // A name without a dot has no extension for the rest of the mask.
            const size_t dot = name.find(u'.');
            name = dot == std::u16string_view::npos ? std::u16string_view() : name.substr(dot + 1);
            mask.remove_prefix(1);
        } else {
            // A literal replaces nothing: the name stays where it was.
            out.push_back(c);
            mask.remove_prefix(1);
        }
    }
    return out;
}

std::u16string PathDir(std::u16string_view path) {
    const size_t slash = path.rfind(kBackslash);
    if (slash != std::u16string_view::npos)
        return std::u16string(path.substr(0, slash + 1));
    if (HasDrivePrefix(path))
        return std::u16string(path.substr(0, 2));
    return {};
}

SplitResult SplitTarget(std::u16string_view target, const PathProbe &probe) {
    SplitResult r;
    if (HasDrivePrefix(target) && probe.DriveNumber(target) == 0) {
        r.code = -15;
        return r;
    }
    std::u16string work(target);
    if (!target.empty() && target.back() != kBackslash && probe.IsDir(target)) {
        r.dir = work + kBackslash;
        work = r.dir + std::u16string(kAllFiles);
    } else if (const size_t slash = work.rfind(kBackslash); slash != std::u16string::npos) {
        std::u16string dir = work.substr(0, slash + 1);
        if (!probe.IsDir(dir)) {
            r.code = -3;
            return r;
        }
        r.dir = std::move(dir);
    }
    const size_t slash = work.rfind(kBackslash);
    if (slash != std::u16string::npos)
        r.name = work.substr(slash + 1);
    else if (HasDrivePrefix(work))
        r.name = work.substr(2);
    return r;
}

} // namespace zk::os
