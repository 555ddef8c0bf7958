// The control's window as the portable logic sees it, for native tests: it
// records, as short texts, everything the logic asks of it. Rectangles are
// named by the test's namer ("cell 14", "grid") where it knows them, else
// written out as [left,top,right,bottom].
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "frame/core/effects.h"

namespace zkt {

class FakeEffects : public zk::ControlEffects {
public:
    using Namer = std::function<std::string(const zk::Rect &)>;

    bool IsCreated() const override { return created; }
    void Invalidate(const zk::Rect &area, bool erase) override {
        if (!area.Empty())
            Log("inv " + Name(area) + (erase ? " erase" : ""));
    }
    void InvalidateAll(bool erase) override { Log(std::string("inv window") + (erase ? " erase" : "")); }
    void Update() override { Log("update"); }
    void Redraw() override { Log("redraw"); }
    void PaintNow(const zk::Rect &area) override { Log("paint " + Name(area)); }
    void Notify(int32_t code) override { Log("notify " + std::to_string(code)); }
    void PostToSelf(uint32_t message, uintptr_t wParam, intptr_t lParam) override {
        const std::string what = message == zk::kHostMsgSelect        ? "select"
                                 : message == zk::kHostMsgDoubleClick ? "dblclk"
                                                                      : std::to_string(message);
        Log("post " + what + " " + std::to_string(static_cast<intptr_t>(wParam)) +
            (lParam ? " " + std::to_string(lParam) : ""));
    }
    bool StartTimer(uint32_t id, uint32_t period) override {
        Log("start " + std::to_string(id) + "/" + std::to_string(period));
        return !timersFail;
    }
    void StopTimer(uint32_t id) override { Log("stop " + std::to_string(id)); }
    void TakeCapture() override {
        Log("capture");
        captured = true;
    }
    void DropCapture() override {
        Log("release");
        captured = false;
    }
    bool HasCapture() const override { return captured; }
    bool HasFocus() const override { return focused; }
    void TakeFocus() override {
        Log("focus");
        focused = true;
    }
    int32_t FieldValidate(int32_t flag) override {
        Log("validate " + std::to_string(flag));
        return validateAnswer;
    }
    void Hide() override { Log("hide"); }
    bool KeyDown(uint32_t key) const override {
        return (key == zk::kKeyControl && ctrl) || (key == zk::kKeyShift && shift);
    }

    // The events since the last call, which forgets them.
    std::vector<std::string> Take() { return std::exchange(events, {}); }

    Namer namer;
    bool created = true;
    bool timersFail = false;
    bool focused = true;
    bool captured = false;
    int32_t validateAnswer = 1;
    bool ctrl = false, shift = false;
    std::vector<std::string> events;

private:
    std::string Name(const zk::Rect &r) const {
        std::string name = namer ? namer(r) : std::string();
        if (name.empty())
            name = "[" + std::to_string(r.left) + "," + std::to_string(r.top) + "," + std::to_string(r.right) + "," +
                   std::to_string(r.bottom) + "]";
        return name;
    }
    void Log(std::string event) { events.push_back(std::move(event)); }
};

// Where an event stands among those recorded, -1 when it is not there.
inline long EventAt(const std::vector<std::string> &events, const std::string &event) {
    const auto found = std::find(events.begin(), events.end(), event);
    return found == events.end() ? -1 : static_cast<long>(found - events.begin());
}
inline bool Has(const std::vector<std::string> &events, const std::string &event) {
    return EventAt(events, event) >= 0;
}

} // namespace zkt
