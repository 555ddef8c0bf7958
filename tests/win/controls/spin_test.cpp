// The spin field on a real form: the private messages, keys in its edit,
// the buttons with their repeat, the focus hand-back, the design block and
// the paint, read from its edit's text and its pixels.
#include "controls_support.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "controls/win/spin_record.h"
#include "frame/win/localblock.h"
#include "frame/win/prop_block.h"

namespace {

using ctltest::Text;

constexpr int kWidth = 100, kHeight = 21; // buttons at x 86 to 100: up 0 to 10, down 11 to 21

class SpinForm {
public:
    explicit SpinForm(void *parameter = ctltest::runTime) {
        before = form.AddEdit(3, {10, 10, 100, 20}, WS_BORDER, L"before");
        spin = CreateWindowExW(0, L"ZK:cSpinField:10", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, 40, kWidth, kHeight,
                               form, reinterpret_cast<HMENU>(INT_PTR{4}), GetModuleHandleW(nullptr), parameter);
        edit = GetWindow(spin, GW_CHILD);
    }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(spin, message, wParam, lParam);
    }
    void Mouse(UINT message, int x, int y) const {
        Send(message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, zkt::ClientPoint(x, y));
    }
    // The press as long ago as a held button needs to repeat.
    void PressLongAgo() const {
        zk::LocalWith<zk::ctl::SpinRecord>(Handle(), [](zk::ctl::SpinRecord &r) { r.pressTick -= 1000; });
    }
    zk::ctl::SpinRecord Record() const {
        zk::ctl::SpinRecord r{};
        zk::LocalCopy(Handle(), &r);
        return r;
    }
    HLOCAL Handle() const { return static_cast<HLOCAL>(GetPropW(spin, L"ZK:SpinParent")); }

    zkt::TestWindow form{300, 200};
    HWND before = nullptr, spin = nullptr, edit = nullptr;
};

TEST(SpinField, MadeAtRunTimeWithItsEditAndRecord) {
    SpinForm s;
    ASSERT_NE(s.spin, nullptr);
    ASSERT_NE(s.edit, nullptr);
    EXPECT_EQ(GetWindowLongPtrW(s.edit, GWL_STYLE) & ~WS_BORDER, 0x50810080 & ~WS_BORDER)
        << "an edit draws its border itself";
    RECT r = ctltest::InParent(s.edit);
    EXPECT_EQ(std::vector<LONG>({r.left, r.top, r.right, r.bottom}), std::vector<LONG>({-1, -1, 87, 22}));
    EXPECT_EQ(GetPropW(s.edit, L"ZK:SpinParent"), s.Handle()) << "the edit finds the same record";
    EXPECT_EQ(LocalSize(s.Handle()), sizeof(zk::ctl::SpinRecord));
    const zk::ctl::SpinRecord rec = s.Record();
    EXPECT_EQ(rec.values.minimum, 1);
    EXPECT_EQ(rec.values.maximum, 0x7FFFFFFF);
    EXPECT_EQ(rec.self, s.spin);
    EXPECT_EQ(rec.edit, s.edit);
    EXPECT_EQ(rec.flags, 0);
    const HLOCAL handle = s.Handle();
    DestroyWindow(s.spin);
    EXPECT_FALSE(IsWindow(s.edit));
    EXPECT_EQ(LocalFlags(handle), LMEM_INVALID_HANDLE) << "the record is freed with the window";
}

TEST(SpinField, PrivateMessagesSetAndStepTheValue) {
    SpinForm s;
    struct Step {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        LRESULT answer;
        const wchar_t *text;
    };
    const Step steps[] = {
        {ZKM_SpinUp, 0, 0, 1, L"1"}, // the defaults: an empty edit shows the minimum
        {ZKM_SpinUp, 0, 0, 1, L"2"},
        {ZKM_SpinSetMax, 0, 10, 1, L""},
        {ZKM_SpinSetValue, 0, 10, 1, L"10"},
        {ZKM_SpinUp, 0, 0, 1, L"10"},
        {ZKM_SpinSetValue, 0, 1, 1, L"1"},
        {ZKM_SpinDown, 0, 0, 1, L"1"},
        {ZKM_SpinSetStep, 0, 3, 1, L""},
        {ZKM_SpinSetValue, 0, 9, 1, L"9"},
        {ZKM_SpinUp, 0, 0, 1, L"10"},        // 12 is cut to the maximum
        {ZKM_SpinSetStep, 5, 0, 0, L"10"},   // increment 0 changes nothing
        {ZKM_SpinSetValue, 0, 50, 1, L"50"}, // above the maximum is shown
        {ZKM_SpinSetMin, 0, 5, 1, L""},
        {ZKM_SpinDown, 0, 0, 1, L"5"}, // the next step shows the new minimum
        {ZKM_SpinSetMax, 0, 100000, 1, L""},
        {ZKM_SpinSetStep, static_cast<WPARAM>(-2), 5, 1, L""},
        {ZKM_SpinSetValue, 0, 1234, 1, L"12.34"},
        {ZKM_SpinSetValue, 0, 1200, 1, L"12"},
    };
    for (const Step &step : steps) {
        EXPECT_EQ(s.Send(step.message, step.wParam, step.lParam), step.answer) << std::hex << step.message;
        EXPECT_EQ(Text(s.edit), step.text) << std::hex << step.message << " " << std::dec << step.lParam;
    }
    SetWindowTextW(s.edit, L"12.5");
    s.Send(ZKM_SpinUp);
    EXPECT_EQ(Text(s.edit), L"12.10") << "12.5 reads as 1205, kept as it stands";
    const auto text = static_cast<HostStr>(s.Send(ZKM_SpinGetText));
    int32_t size = 0;
    ASSERT_NE(text, 0u);
    EXPECT_STREQ(HostStrLock(text, &size), L"12.10");
    ZkHostStrRelease(text);
    EXPECT_EQ(GetPropW(s.spin, L"ZkHost:Edited"), reinterpret_cast<HANDLE>(1)) << "an edit change marks the field";
}

// A million steps run natively (the core with the host's number reading);
// here the last ten, through the window and its edit.
TEST(SpinField, ScaledDecimalsStepExactlyThroughTheEdit) {
    SpinForm s;
    s.Send(ZKM_SpinSetStep, static_cast<WPARAM>(-1), 1);
    s.Send(ZKM_SpinSetMin, 0, 0);
    s.Send(ZKM_SpinSetValue, 0, 999990);
    EXPECT_EQ(Text(s.edit), L"99999");
    for (int i = 0; i < 10; ++i)
        s.Send(ZKM_SpinUp);
    EXPECT_EQ(Text(s.edit), L"100000");
    EXPECT_EQ(s.Record().values.value, 1000000);
    s.Send(ZKM_SpinDown);
    EXPECT_EQ(Text(s.edit), L"99999.9");
    SetWindowTextW(s.edit, L"0.9");
    s.Send(ZKM_SpinUp);
    EXPECT_EQ(Text(s.edit), L"1");
}

TEST(SpinField, ArrowKeysInTheEditStepAndTheFocusGoesToTheEdit) {
    SpinForm s;
    HWND had = GetFocus();
    SetFocus(s.spin);
    EXPECT_EQ(GetFocus(), s.edit) << "the spin window passes the focus on";
    EXPECT_EQ(s.Record().lastFocus, had);
    EXPECT_EQ(SendMessageW(s.edit, WM_KEYDOWN, VK_UP, 0), 1);
    EXPECT_EQ(Text(s.edit), L"1");
    SetWindowTextW(s.edit, L"7");
    SendMessageW(s.edit, WM_KEYDOWN, VK_UP, 0);
    EXPECT_EQ(Text(s.edit), L"8");
    SendMessageW(s.edit, WM_KEYDOWN, VK_DOWN, 0);
    SendMessageW(s.edit, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(Text(s.edit), L"6");
    SetWindowTextW(s.edit, L"not a number");
    SendMessageW(s.edit, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(Text(s.edit), L"5") << "the stored value steps";
    SetFocus(s.spin); // as a back-tab out of the edit hands it over
    EXPECT_EQ(GetFocus(), s.before) << "the window before the spin field in Z order";
    DWORD start = 1, end = 0;
    SendMessageW(s.before, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 0u);
    EXPECT_EQ(end, 6u) << "a data field's text is all selected";
}

TEST(SpinMouse, AClickStepsAtTheReleaseAndAHeldButtonRepeats) {
    SpinForm s;
    s.Mouse(WM_LBUTTONDOWN, 93, 4);
    EXPECT_EQ(GetCapture(), s.spin);
    EXPECT_EQ(s.Record().flags, zk::ctl::SPF_UpDown);
    EXPECT_EQ(Text(s.edit), L"") << "no step at the press";
    s.Mouse(WM_LBUTTONUP, 93, 4);
    EXPECT_EQ(Text(s.edit), L"1");
    EXPECT_EQ(GetCapture(), nullptr);

    s.Mouse(WM_LBUTTONDOWN, 93, 4);
    s.PressLongAgo();
    s.Send(WM_TIMER, 1);
    s.Send(WM_TIMER, 1);
    EXPECT_EQ(Text(s.edit), L"3") << "a step per tick once 300 ms have passed";
    s.Mouse(WM_LBUTTONUP, 93, 4);
    EXPECT_EQ(Text(s.edit), L"4") << "and one more at a release inside";

    s.Mouse(WM_LBUTTONDBLCLK, 93, 15);
    EXPECT_EQ(s.Record().flags, zk::ctl::SPF_DownDown);
    s.Mouse(WM_MOUSEMOVE, 40, 15);
    EXPECT_EQ(GetCapture(), nullptr) << "leaving the button ends the press";
    EXPECT_EQ(s.Record().flags, 0);
    s.Mouse(WM_MOUSEMOVE, 93, 15);
    s.Mouse(WM_LBUTTONUP, 93, 15);
    EXPECT_EQ(Text(s.edit), L"4") << "a press does not come back";

    s.Mouse(WM_LBUTTONDOWN, 93, 15);
    s.PressLongAgo();
    EnableWindow(s.form, FALSE);
    s.Send(WM_TIMER, 1);
    EnableWindow(s.form, TRUE);
    EXPECT_EQ(GetCapture(), nullptr) << "a disabled parent ends the press at a tick";
    EXPECT_EQ(s.Record().flags, 0);
    EXPECT_EQ(Text(s.edit), L"4");
}

TEST(SpinPaint, RaisedAndPressedButtons) {
    SpinForm s;
    const COLORREF black = RGB(0, 0, 0), white = RGB(255, 255, 255), shadow = GetSysColor(COLOR_BTNSHADOW);
    const zkt::Bitmap raised = zkt::PrintClient(s.spin);
    EXPECT_EQ(raised.pixel(86, 3), black) << "the line left of the buttons";
    EXPECT_EQ(raised.pixel(95, 10), black) << "the line between them";
    EXPECT_EQ(raised.pixel(87, 8), white) << "the lit edge of a raised button";
    EXPECT_EQ(raised.pixel(99, 5), shadow);
    EXPECT_EQ(raised.pixel(93, 2), black) << "the up arrow's tip";
    EXPECT_EQ(raised.pixel(89, 13), black) << "the down arrow's base";
    EXPECT_EQ(raised.pixel(90, 2), GetSysColor(COLOR_BTNFACE));
    s.Mouse(WM_LBUTTONDOWN, 93, 4);
    const zkt::Bitmap pressed = zkt::PrintClient(s.spin);
    EXPECT_EQ(pressed.pixel(87, 8), shadow) << "a pressed button's edge is in shadow";
    EXPECT_EQ(pressed.pixel(94, 3), black) << "its arrow moves by a pixel";
    EXPECT_EQ(pressed.pixel(89, 13), black) << "the other button stays";
    s.Mouse(WM_LBUTTONUP, 93, 4);
    EXPECT_EQ(s.Record().flags, 0) << "the clicked look lasts one paint";
}

TEST(SpinDesign, NoEditAndTheBlockFromTheItem) {
    zkt::StoredBlockItem bind;
    const zk::SpinBlock block{5, 50, 5, 0};
    ASSERT_EQ(zk::SpinBlockStore(bind.outline, bind.item, block), 1);
    SpinForm s(nullptr);
    EXPECT_EQ(s.edit, nullptr);
    EXPECT_EQ(s.Record().flags, zk::ctl::SPF_Design);
    s.Send(ZKM_SpinUp);
    s.Send(ZKM_SpinUp);
    EXPECT_EQ(Text(s.spin), L"10") << "minimum 5, increment 5";
    const zkt::Bitmap painted = zkt::PrintClient(s.spin);
    EXPECT_EQ(painted.pixel(40, 10), GetSysColor(COLOR_WINDOW)) << "the field's background left of the buttons";
    EXPECT_NE(painted.pixel(94, 18), RGB(0, 0, 0));
    s.Mouse(WM_LBUTTONDOWN, 93, 15);
    EXPECT_EQ(zkt::PrintClient(s.spin).pixel(94, 18), RGB(0, 0, 0)) << "a press still draws, the arrow moved";
    s.Mouse(WM_LBUTTONUP, 93, 15);
}

TEST(SpinDesign, ABlockInTheCreationParameter) {
    const HGLOBAL record = GlobalAlloc(GMEM_MOVEABLE, 16);
    const int32_t values[4] = {-4, 4, 2, 0};
    std::memcpy(GlobalLock(record), values, sizeof values);
    GlobalUnlock(record);
    zk::ctl::SpinDesignParameter parameter{16, record};
    SpinForm s(&parameter);
    s.Send(ZKM_SpinDown);
    s.Send(ZKM_SpinUp);
    EXPECT_EQ(Text(s.spin), L"-2");
    parameter.size = 15;
    SpinForm other(&parameter);
    other.Send(ZKM_SpinDown);
    EXPECT_EQ(Text(other.spin), L"1") << "another size word: the defaults";
    GlobalFree(record);
}

TEST(SpinMessages, FontColoursAndWhatGoesToTheEdit) {
    SpinForm s;
    std::vector<UINT> asked;
    s.form.OnMessage([&](HWND, UINT message, WPARAM, LPARAM lParam, LRESULT &) {
        if (message == WM_CTLCOLOREDIT || message == 0x19)
            asked.push_back(message);
        return false;
    });
    const HFONT font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    s.Send(WM_SETFONT, reinterpret_cast<WPARAM>(font));
    EXPECT_EQ(s.Send(WM_GETFONT), reinterpret_cast<LRESULT>(font));
    EXPECT_EQ(SendMessageW(s.edit, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(font));
    s.Send(0x19, 0, reinterpret_cast<LPARAM>(s.edit));
    RedrawWindow(s.edit, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_GE(std::count(asked.begin(), asked.end(), UINT{WM_CTLCOLOREDIT}), 1)
        << "the edit's colours come from the form";
    EXPECT_EQ(std::count(asked.begin(), asked.end(), UINT{0x19}), 1);
    EXPECT_EQ(s.Send(EM_SETREADONLY, TRUE), 1);
    EXPECT_NE(GetWindowLongPtrW(s.edit, GWL_STYLE) & ES_READONLY, 0);
    s.Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"42"));
    EXPECT_EQ(Text(s.edit), L"42");
    EXPECT_EQ(s.Send(WM_GETTEXTLENGTH), 2);
}

} // namespace
