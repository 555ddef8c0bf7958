#include "os/core/dos_pathtext.h"

#include <algorithm>

namespace zk::os {

std::u16string WithBackslash(std::u16string_view text) {
    std::u16string out(text);
    if (!out.empty() && out.back() != u'\\')
        out += u'\\';
    return out;
}

std::vector<std::u16string> SearchPathPieces(std::u16string_view path) {
    std::vector<std::u16string> pieces;
    size_t start = 0;
    while (start <= path.size()) {
        size_t end = path.find(u';', start);
        if (end == std::u16string_view::npos)
            end = path.size();
        if (end > start)
            pieces.push_back(WithBackslash(path.substr(start, end - start)));
        start = end + 1;
    }
    return pieces;
}

std::vector<std::u16string> MakeAllDirSteps(std::u16string_view path) {
    const std::u16string full = WithBackslash(path);
    std::vector<std::u16string> steps;
    for (size_t slash = full.find(u'\\'); slash != std::u16string::npos; slash = full.find(u'\\', slash + 1)) {
        // The prefix with its backslash: "C:\" is the root and is never made.
        const size_t built = slash + 1;
        if (built == 3 && full[1] == u':')
            continue;
        if (slash == 0)
            continue; // "\": the root of the current drive
        steps.emplace_back(full, 0, slash);
    }
    return steps;
}

PathParts SplitPathParts(std::u16string_view path) {
    PathParts parts;
    if (path.size() >= 2 && path[1] == u':') {
        parts.drive = path.substr(0, kDriveChars);
        path.remove_prefix(2);
    }
    const size_t slash = path.find_last_of(u"\\/");
    if (slash != std::u16string_view::npos) {
        parts.dir = path.substr(0, std::min(slash + 1, kPartChars));
        path.remove_prefix(slash + 1);
    }
    const size_t dot = path.rfind(u'.');
    if (dot != std::u16string_view::npos) {
        parts.name = path.substr(0, std::min(dot, kPartChars));
        parts.ext = path.substr(dot, kPartChars);
    } else {
        parts.name = path.substr(0, kPartChars);
    }
    return parts;
}

std::u16string BesideModule(std::u16string_view moduleFile, std::u16string_view file) {
    const size_t slash = moduleFile.rfind(u'\\');
    std::u16string out(slash == std::u16string_view::npos ? std::u16string_view() : moduleFile.substr(0, slash + 1));
    out += file;
    return out;
}

} // namespace zk::os
