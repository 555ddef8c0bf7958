// The table of window marks.
#include "winmarks.h"

#include <unordered_map>

namespace hostwin {
namespace {

std::unordered_map<HWND, WinMark> &Marks() {
    static std::unordered_map<HWND, WinMark> marks;
    return marks;
}

// Sweeping when the table has doubled since the last sweep keeps the cost
// per mark constant.
size_t SweepAt = 16;

void SweepIfDue() {
    auto &marks = Marks();
    if (marks.size() < SweepAt)
        return;
    for (auto it = marks.begin(); it != marks.end();)
        it = IsWindow(it->first) ? std::next(it) : marks.erase(it);
    SweepAt = marks.size() * 2 > 16 ? marks.size() * 2 : 16;
}

void DropIfEmpty(std::unordered_map<HWND, WinMark>::iterator it) {
    if (!it->second.typed && !it->second.named && it->second.frameKind == 0)
        Marks().erase(it);
}

} // namespace

const WinMark *FindMark(HWND window) {
    auto &marks = Marks();
    auto it = marks.find(window);
    if (it == marks.end())
        return nullptr;
    if (!IsWindow(window)) {
        marks.erase(it);
        return nullptr;
    }
    return &it->second;
}

void MarkType(HWND window, uint32_t type, uint32_t cls) {
    if (!IsWindow(window))
        return;
    SweepIfDue();
    auto it = Marks().try_emplace(window).first;
    it->second.typed = type != 0;
    it->second.type = type;
    it->second.cls = type ? cls : 0;
    DropIfEmpty(it);
}

void MarkName(HWND window, const wchar_t *name) {
    if (!IsWindow(window))
        return;
    SweepIfDue();
    auto it = Marks().try_emplace(window).first;
    it->second.named = name != nullptr;
    it->second.name = name ? name : L"";
    DropIfEmpty(it);
}

void MarkFrameKind(HWND window, int32_t kind) {
    if (!IsWindow(window))
        return;
    SweepIfDue();
    auto it = Marks().try_emplace(window).first;
    it->second.frameKind = kind;
    DropIfEmpty(it);
}

} // namespace hostwin
