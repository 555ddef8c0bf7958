// What the gallery was asked to do: the command line and the environment.
#pragma once

#include <string>

namespace gallery {

struct Options {
    bool headless = false;                 // --headless, or ZK_HEADLESS=1
    std::wstring outDir = L"out\\gallery"; // --out DIR: log and pictures
    bool valid = true;
    std::wstring error;
};

// Reads the arguments (without the program name) and ZK_HEADLESS.
Options ParseOptions(int argc, const wchar_t *const *argv, const wchar_t *headlessVariable);

// A Unix path ("/tmp/x") as Wine sees it ("Z:\tmp\x"); other paths keep
// their form, with forward slashes turned round.
std::wstring WindowsPath(const std::wstring &path);

} // namespace gallery
