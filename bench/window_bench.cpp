// Two costs of the window utilities against the platform's own, measured
// in the same run:
//  - the keyboard hook with 500 accelerators loaded, per key (down and up,
//    each matching one accelerator), against TranslateAcceleratorW on a
//    table of the same 500 keys given the same two messages;
//  - a message box shown until its first paint, then closed, against
//    MessageBoxW with the same text.
// The program fails only when an accelerator or a box does not answer as
// it should.
#include <windows.h>

#include <vector>

#include "bench.h"
#include "zkhost.h"
#include "zklib.h"

namespace {

using namespace bench;

constexpr UINT kFired = WM_APP + 1;
constexpr int kAccelerators = 500;

struct Combo {
    WORD key;
    uint32_t modifiers; // shift 1, control 2, alt 4
};

int firedCount = 0, commandCount = 0;
int64_t firedSum = 0, commandSum = 0;

LRESULT CALLBACK FormProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kFired) {
        ++firedCount;
        firedSum += lParam;
        return 0;
    }
    if (message == WM_COMMAND || message == WM_SYSCOMMAND) {
        if (message == WM_SYSCOMMAND && (wParam & 0xFFF0) >= 0xF000)
            return DefWindowProcW(window, message, wParam, lParam);
        ++commandCount;
        commandSum += LOWORD(wParam);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

HWND MakeForm() {
    WNDCLASSW wc{};
    wc.lpfnWndProc = FormProc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = L"ZkWindowBenchForm";
    RegisterClassW(&wc);
    HWND form = CreateWindowW(wc.lpszClassName, L"bench", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                              nullptr, wc.hInstance, nullptr);
    SetForegroundWindow(form);
    SetFocus(form);
    MSG m;
    while (PeekMessageW(&m, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&m);
    return form;
}

// 500 keys: letters, digits and function keys, each with the eight
// combinations of modifiers, ordered by modifiers.
std::vector<Combo> Combos() {
    std::vector<WORD> keys;
    for (WORD k = 'A'; k <= 'Z'; ++k)
        keys.push_back(k);
    for (WORD k = '0'; k <= '9'; ++k)
        keys.push_back(k);
    for (WORD k = VK_F1; k <= VK_F24; ++k)
        keys.push_back(k);
    std::vector<Combo> out;
    for (uint32_t m = 0; m < 8; ++m)
        for (WORD k : keys)
            if (out.size() < kAccelerators)
                out.push_back({k, m});
    return out;
}

void HoldModifiers(uint32_t modifiers) {
    BYTE state[256] = {};
    GetKeyboardState(state);
    state[VK_SHIFT] = modifiers & 1 ? 0x80 : 0;
    state[VK_CONTROL] = modifiers & 2 ? 0x80 : 0;
    state[VK_MENU] = modifiers & 4 ? 0x80 : 0;
    SetKeyboardState(state);
}

// Each key through `translate(combo, keyUp)`, the modifiers held as its combination says.
template <class Translate>
double KeysThrough(const std::vector<Combo> &combos, Translate &&translate) {
    const double start = Seconds();
    uint32_t held = 99;
    for (const Combo &c : combos) {
        if (c.modifiers != held)
            HoldModifiers(held = c.modifiers);
        translate(c, false);
        translate(c, true);
    }
    HoldModifiers(0);
    return Seconds() - start;
}

void MeasureAccelerators(Run &run, HWND form) {
    const std::vector<Combo> combos = Combos();
    std::vector<ZelAccelHandle> handles;
    std::vector<ACCEL> table;
    for (size_t i = 0; i < combos.size(); ++i) {
        const Combo &c = combos[i];
        handles.push_back(ZelWinLoadAccelerator(form, kFired, c.modifiers, c.key, static_cast<uint32_t>(i + 1)));
        BYTE virt = FVIRTKEY;
        virt |= c.modifiers & 1 ? FSHIFT : 0;
        virt |= c.modifiers & 2 ? FCONTROL : 0;
        virt |= c.modifiers & 4 ? FALT : 0;
        table.push_back({virt, c.key, static_cast<WORD>(i + 1)});
    }
    HACCEL accel = CreateAcceleratorTableW(table.data(), static_cast<int>(table.size()));
    if (!run.Check(accel != nullptr, "CreateAcceleratorTableW failed"))
        return;
    if (!run.Check(GetForegroundWindow() == form, "the form is not in the foreground"))
        return;

    const auto hook = [](const Combo &c, bool up) {
        KeyboardHookProc(HC_ACTION, c.key, up ? static_cast<LPARAM>(0xC0000001) : 1);
    };
    const auto platform = [&](const Combo &c, bool up) {
        const bool alt = c.modifiers & 4;
        MSG msg{form, static_cast<UINT>(alt ? (up ? WM_SYSKEYUP : WM_SYSKEYDOWN) : (up ? WM_KEYUP : WM_KEYDOWN)), c.key,
                up ? static_cast<LPARAM>(0xC0000001) : 1};
        TranslateAcceleratorW(form, accel, &msg);
    };
    const int64_t expectedSum = static_cast<int64_t>(combos.size()) * (combos.size() + 1) / 2;
    const int repeat = run.Size(1, 10), rounds = run.Size(3, 9);
    std::vector<double> hookTimes, platformTimes;
    for (int round = 0; round < rounds; ++round) {
        double h = 0, p = 0;
        for (int r = 0; r < repeat; ++r) {
            firedCount = commandCount = 0;
            firedSum = commandSum = 0;
            h += KeysThrough(combos, hook);
            p += KeysThrough(combos, platform);
            if (!run.Check(firedCount == static_cast<int>(combos.size()) && firedSum == expectedSum,
                           "the hook did not send each accelerator's message once") ||
                !run.Check(commandCount == static_cast<int>(combos.size()) && commandSum == expectedSum,
                           "TranslateAcceleratorW did not send each command once"))
                break;
        }
        hookTimes.push_back(h);
        platformTimes.push_back(p);
    }
    const double perKey = Median(hookTimes) / (repeat * combos.size());
    run.Note("hook, microseconds per key (500 accelerators)", perKey * 1e6);
    run.Figure("hook per key / TranslateAcceleratorW", Median(hookTimes) / Median(platformTimes), Want::AtMost, 1.5);
    for (ZelAccelHandle h : handles)
        run.Check(ZelWinFreeAccelerator(h) == 1, "an accelerator did not free");
    DestroyAcceleratorTable(accel);
}

// Closes a box once anything in it has painted.
HHOOK paintHook = nullptr;
WPARAM closeWith = 0;
bool closing = false;

LRESULT CALLBACK FirstPaint(int code, WPARAM wParam, LPARAM lParam) {
    const MSG *msg = reinterpret_cast<const MSG *>(lParam);
    if (code == HC_ACTION && msg->message == WM_PAINT && !closing) {
        HWND root = GetAncestor(msg->hwnd, GA_ROOT);
        wchar_t name[16] = {};
        GetClassNameW(root, name, 16);
        if (lstrcmpW(name, L"#32770") == 0) {
            closing = true;
            PostMessageW(root, WM_COMMAND, closeWith, 0);
        }
    }
    return CallNextHookEx(paintHook, code, wParam, lParam);
}

double ShowUntilPainted(WPARAM button, const std::function<int()> &show, int &answer) {
    closeWith = button;
    closing = false;
    const double start = Seconds();
    answer = show();
    return Seconds() - start;
}

void MeasureMessageBox(Run &run, HWND form) {
    const wchar_t *text = L"The order has been saved. Print the delivery note now?";
    const wchar_t *caption = L"Orders";
    const ZelMsgButton ok = ZelMessageLoadButton(L"OK", 7);
    const HostArray buttons = HostArrayCreate(HOST_TYPE_NUMBER);
    HostNumber number{};
    HostNumberFromDouble(static_cast<double>(ok), &number);
    HostArraySetNumber(buttons, &number, 0);
    paintHook = SetWindowsHookExW(WH_GETMESSAGE, FirstPaint, nullptr, GetCurrentThreadId());
    SetActiveWindow(form);

    const int rounds = run.Size(3, 15);
    std::vector<double> ours, platform;
    for (int round = 0; round < rounds; ++round) {
        int answer = 0;
        ours.push_back(ShowUntilPainted(
            2, [&] { return ZelMessageBox(text, caption, 0, buttons, 1); }, answer));
        if (!run.Check(answer == 7, "ZelMessageBox did not answer with its button's result"))
            break;
        platform.push_back(ShowUntilPainted(
            IDOK, [&] { return MessageBoxW(form, text, caption, MB_OK); }, answer));
        if (!run.Check(answer == IDOK, "MessageBoxW did not answer OK"))
            break;
    }
    UnhookWindowsHookEx(paintHook);
    HostArrayDestroy(buttons);
    ZelMessageFreeButton(ok);
    if (ours.empty() || platform.empty())
        return;
    run.Note("message box to first paint, milliseconds", Median(ours) * 1e3);
    run.Figure("message box to first paint / MessageBoxW", Median(ours) / Median(platform), Want::AtMost, 1.5);
}

} // namespace

int main(int argc, char **argv) {
    Run run("bench_window", argc, argv);
    HWND form = MakeForm();
    MeasureAccelerators(run, form);
    MeasureMessageBox(run, form);
    DestroyWindow(form);
    return run.Finish();
}
