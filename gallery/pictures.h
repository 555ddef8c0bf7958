// Where the pictures of a headless run go: one 24-bit BMP per window, named
// after it, in the output folder (the launcher turns them into PNGs).
#pragma once

#include <string>

#include "bmpfile.h"

namespace gallery {

class Report;

class Pictures {
public:
    Pictures(bool enabled, const std::wstring &folder, Report &report)
        : enabled_(enabled), folder_(folder), report_(report) {}

    bool Enabled() const { return enabled_; }
    // Writes <folder>\<name>.bmp; a picture that is empty or of one colour
    // only is a failed step, as nothing was drawn.
    void Save(const std::wstring &name, const Picture &picture);

private:
    bool enabled_;
    std::wstring folder_;
    Report &report_;
};

} // namespace gallery
