// A palette without a window: the model and input of the control over a
// recording window (zkt::FakeEffects) and a view that lays out with fixed
// metrics (line height 16, base width 8) in a client 140 pixels wide,
// answers system colours 0x00C0FF00 + index and "#<id>" for strings but
// string 80.
#pragma once

#include <string>
#include <vector>

#include "fake_effects.h"
#include "palette/core/palette_input.h"
#include "palette/core/palette_layout.h"
#include "palette/core/palette_model.h"

namespace paltest {

inline constexpr int32_t kLineHeight = 16, kBaseWidth = 8, kClientWidth = 140, kClientHeight = 200;
inline constexpr uintptr_t kHandle = 0x1234;

inline uint32_t SysColor(int32_t index) { return 0x00C0FF00u + static_cast<uint32_t>(index); }

struct FakeView : zk::pal::PaletteView {
    void RecalcLayout() override {
        events->push_back("layout");
        layout->Compute({0, 0, kClientWidth, kClientHeight}, kLineHeight, kBaseWidth, model->Counts());
    }
    void FitWindow() override { events->push_back("fit"); }
    uint32_t SysColor(int32_t index) const override { return paltest::SysColor(index); }
    std::u16string LoadText(uint32_t id) const override {
        if (id == 80)
            return u"Other Color...";
        const std::string digits = "#" + std::to_string(id);
        return std::u16string(digits.begin(), digits.end());
    }
    uintptr_t Handle() const override { return kHandle; }

    zk::pal::PaletteModel *model = nullptr;
    zk::pal::GridLayout *layout = nullptr;
    std::vector<std::string> *events = nullptr;
};

// A created palette of the eight default colours with recent colours on:
// one menu line, "Other Color...". Effects and layouts are recorded in the
// one list of events, the layout's parts by name ("main", "menu",
// "recent", "frame", "focus 0.3" for a focus cell's area).
struct Palette {
    Palette() {
        view.model = &model;
        view.layout = &layout;
        view.events = &fx.events;
        fx.namer = [this](const zk::Rect &r) { return Name(r); };
        model.AttachView(&fx, &view, &layout);
        model.ApplyProperties(zk::pal::SPropPalette());
        model.SetFocusCell(0, zk::pal::kZoneMain, 0);
        fx.Take();
    }
    std::string Name(const zk::Rect &r) const {
        const struct {
            const zk::Rect &rect;
            const char *name;
        } parts[] = {
            {layout.Main(), "main"}, {layout.Menu(), "menu"}, {layout.Recent(), "recent"}, {layout.Frame(), "frame"}};
        for (const auto &part : parts)
            if (r == part.rect)
                return part.name;
        // Up to the count: a colour zone's cell there still has a place.
        for (int32_t zone = 0; zone < zk::pal::kZoneCount; ++zone)
            for (int32_t i = 0; i <= model.Counts().Of(zone); ++i)
                if (r == model.FocusArea(zone, i))
                    return "focus " + std::to_string(zone) + "." + std::to_string(i);
        return {};
    }
    zk::Point Centre(int32_t zone, int32_t index) const {
        const zk::Rect r = layout.GetCellRect(zone, index, model.Counts());
        return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    }
    zk::pal::Hit Focus() const { return {model.FocusZone(), model.FocusIndex()}; }
    void AddRecent(uint32_t colour) { model.AddRecentColor(std::make_unique<zk::pal::SPaletteColor>(colour)); }

    zk::pal::PaletteModel model;
    zk::pal::GridLayout layout;
    zkt::FakeEffects fx;
    FakeView view;
    uint16_t state = 0;
    zk::pal::Input input{model, layout, fx, view, state};
};

} // namespace paltest
