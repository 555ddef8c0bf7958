// The pens and brushes of a control's colour roles for one paint: a solid
// one-pixel pen and a solid brush per role, each made when a painter first
// asks for it (most roles of a paint only colour text) and deleted with
// the set.
#pragma once

#include <windows.h>

#include <vector>

#include "frame/win/gdi.h"

namespace zk {

class RoleTools {
public:
    // The colours in force, by role.
    explicit RoleTools(std::vector<COLORREF> colours)
        : colours_(std::move(colours)), pens_(colours_.size()), brushes_(colours_.size()) {}
    // The tools of roles 0 to count - 1, each in colourOf(role).
    template <class ColourOf>
    static RoleTools ForRoles(int count, ColourOf &&colourOf) {
        std::vector<COLORREF> colours;
        for (int role = 0; role < count; ++role)
            colours.push_back(colourOf(role));
        return RoleTools(std::move(colours));
    }

    COLORREF Colour(int role) const { return colours_[static_cast<size_t>(role)]; }
    // Null only when the platform has no pen or brush to give.
    HPEN Pen(int role) const {
        auto &pen = pens_[static_cast<size_t>(role)];
        if (!pen)
            pen = SolidPen(Colour(role));
        return pen;
    }
    HBRUSH Brush(int role) const {
        auto &brush = brushes_[static_cast<size_t>(role)];
        if (!brush)
            brush = SolidBrush(Colour(role));
        return brush;
    }

private:
    std::vector<COLORREF> colours_;
    mutable std::vector<zk::Pen> pens_;
    mutable std::vector<zk::Brush> brushes_;
};

} // namespace zk
