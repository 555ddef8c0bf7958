// CColorPalette as a window: the model of palette_model.h shown in three
// stacked zones, painted off screen by the frame's rule and driven by mouse
// and keyboard through Input. CDlgPalette is the form's wrapper that the
// host creates through "ZK:cPalette:10" and that loads its property block;
// a plain CColorPalette is made under "ZK:ColorPalette:10" as the pop-up of
// the palette drop-down.
//
// The pointer that ZKM_ControlCreate announces is the window object; the
// exports reach the model through Model(). The window is the model's
// effects (the control base) and its view: it lays the zones out with its
// font, sizes itself, and hands out system colours and the library's
// strings.
#pragma once

#include <windows.h>

#include "frame/win/generic_control.h"
#include "palette/core/palette_block.h"
#include "palette/core/palette_input.h"
#include "palette/core/palette_layout.h"
#include "palette/core/palette_model.h"

namespace zk::pal {

inline constexpr const wchar_t *kColorPaletteClass = L"ZK:ColorPalette:10";
inline constexpr const wchar_t *kDlgPaletteClass = L"ZK:cPalette:10";
// WS_POPUP | WS_CLIPCHILDREN | WS_BORDER: hidden until the drop-down shows it.
inline constexpr DWORD kPalettePopupStyle = 0x82800000;

class CColorPalette : public CGenericControl, public PaletteView {
public:
    CColorPalette();
    ~CColorPalette() override;

    PaletteModel &Model() { return model_; }
    const PaletteModel &Model() const { return model_; }
    const GridLayout &Layout() const { return layout_; }
    uint16_t State() const { return stateFlags; }

    // The pop-up form; a notify window of 0 leaves the parent as notify window.
    bool Create(const RECT &rect, HWND parent, HWND notify);
    // The block to the model, recent colours as it says, an update. 1.
    int ApplyProperties(const SPropPalette &block);
    // The block, then a u32 version 1 (ignored on reading).
    void Serialize(CArchive &ar) { model_.SerializeBlock(ar); }
    // Frame extents; -1 until created.
    int GetFrameWidth() const { return FrameWidth(); }
    int GetFrameHeight() const { return FrameHeight(); }

    // ---- the frame's virtual operations, on the model's twelve roles ----
    COLORREF GetRoleColor(int role) override;
    COLORREF SetRoleColor(int role, COLORREF colour, int redraw) override;
    void InitClassStatics() override {}
    int IsDerivedRoleColor(int role) override;
    void SizeToFit(int autoSizeFlag) override;
    void RecalcMetrics() override;
    void RecalcFrame() override;

    // ---- PaletteView ----
    void RecalcLayout() override { RecalcMetrics(); }
    void FitWindow() override { SizeToFit(model_.Block().autoSize); }
    uint32_t SysColor(int32_t index) const override { return GetSysColor(index); }
    std::u16string LoadText(uint32_t id) const override;
    uintptr_t Handle() const override { return reinterpret_cast<uintptr_t>(GetSafeHwnd()); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Paint(HDC dc, const Rect &clip) override;

private:
    LRESULT OnCreate();
    LRESULT OnPaletteCommand();
    // The other-colour entry: the platform's colour dialog, and the chosen
    // colour as the newest recent colour.
    void ChooseOtherColor();
    // Roles 1 and 8 from what the notify window answers for a list box:
    // they follow it at every paint.
    void TakePaintColours(HDC dc);

    PaletteModel model_;
    GridLayout layout_;
    Input input_;
};

class CDlgPalette : public CColorPalette {
protected:
    // WM_CREATE, then the block stored on the form's design item.
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace zk::pal
