#include "options.h"

namespace gallery {

Options ParseOptions(int argc, const wchar_t *const *argv, const wchar_t *headlessVariable) {
    Options options;
    if (headlessVariable && std::wstring(headlessVariable) == L"1")
        options.headless = true;
    for (int i = 0; i < argc; ++i) {
        const std::wstring arg = argv[i] ? argv[i] : L"";
        if (arg == L"--headless") {
            options.headless = true;
        } else if (arg == L"--out" && i + 1 < argc && argv[i + 1] && *argv[i + 1]) {
            options.outDir = WindowsPath(argv[++i]);
        } else {
            options.valid = false;
            options.error = L"unknown argument: " + arg + L" (use --headless, --out DIR)";
            break;
        }
    }
    return options;
}

std::wstring WindowsPath(const std::wstring &path) {
    std::wstring out = path;
    for (wchar_t &c : out) {
        if (c == L'/')
            c = L'\\';
    }
    // An absolute Unix path names the Unix root, which Wine maps to drive Z.
    if (!path.empty() && path[0] == L'/')
        out = L"Z:" + out;
    return out;
}

} // namespace gallery
