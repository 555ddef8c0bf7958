// A window for the control's logic: records what the machine asks of it.
#pragma once

#include <string>
#include <vector>

#include "calendar/core/calendar_input.h"
#include "calendar_fakes.h"

namespace calctl {

class FakeEffects : public zk::cal::CalControlEffects {
public:
    bool StartTimer(uint32_t id, uint32_t period) override {
        Log("start " + std::to_string(id) + "/" + std::to_string(period));
        return !timersFail;
    }
    void StopTimer(uint32_t id) override { Log("stop " + std::to_string(id)); }
    void TakeCapture() override { Log("capture"); }
    void DropCapture() override { Log("release"); }
    bool HasFocus() const override { return focused; }
    void TakeFocus() override {
        Log("focus");
        focused = true;
    }
    int32_t FieldValidate(int32_t flag) override {
        Log("validate " + std::to_string(flag));
        return validateAnswer;
    }
    void PostToSelf(uint32_t message, int32_t wParam) override {
        Log((message == zk::cal::kHostMsgSelect ? "post select " : "post dblclk ") + std::to_string(wParam));
    }
    void NotifyParent(int32_t code) override { Log("notify " + std::to_string(code)); }
    void RefreshButton(bool left) override { Log(left ? "button left" : "button right"); }
    void RepaintCaption() override { Log("caption"); }
    void InvalidateWindow() override { Log("invalidate"); }
    void InvalidateCell(int32_t cell, bool update) override {
        Log("cell " + std::to_string(cell) + (update ? " update" : ""));
    }
    void HideWindow() override { Log("hide"); }
    bool CtrlDown() const override { return ctrl; }
    bool ShiftDown() const override { return shift; }

    std::vector<std::string> Take() {
        std::vector<std::string> out;
        out.swap(events);
        return out;
    }
    bool timersFail = false;
    bool focused = true;
    int32_t validateAnswer = 1;
    bool ctrl = false, shift = false;
    std::vector<std::string> events;

private:
    void Log(std::string event) { events.push_back(std::move(event)); }
};

// A created control showing year/month in a client of 140 x 100 with cells
// of 20 x 12, its focus on `focusDay` of that month.
struct Control {
    Control(int year, int month, int focusDay) : shown(year, month) {
        layout.Compute(140, 100, 8, 12);
        shown.cal.SetFocusDate(zk::cal::CDateTime(year, month, focusDay), 0, 1);
        shown.window.Take();
    }
    zk::cal::CCalendar &cal() { return shown.cal; }
    void Style(uint32_t bit, int32_t value) { shown.cal.AssignStyleFlag(bit, value); }
    // The centre of a cell, in client pixels.
    zk::cal::CalPoint Centre(int32_t cell) const {
        const auto r = layout.CellRect(cell);
        return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    }
    caltest::Ymd Focus() { return caltest::Parts(shown.cal.GetFocusDate()); }

    caltest::Shown shown;
    zk::cal::CalLayout layout;
    FakeEffects fx;
    uint16_t state = 0;
    zk::cal::CalInput input{shown.cal, layout, fx, state};
};

} // namespace calctl
