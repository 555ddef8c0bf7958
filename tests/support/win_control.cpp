#include "win_control.h"

#include <string>

#include "zkharness.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace zkt {

std::vector<Posted> DrainQueue() {
    std::vector<Posted> out;
    MSG m{};
    for (int i = 0; i < 1000 && PeekMessageW(&m, nullptr, 0, 0, PM_REMOVE); ++i) {
        if (m.message != WM_PAINT && m.message != WM_TIMER)
            out.push_back({m.hwnd, m.message, m.wParam, m.lParam});
        DispatchMessageW(&m);
    }
    return out;
}

std::vector<int> NotificationCodes(const std::vector<Posted> &posted, HWND notify, HWND control) {
    std::vector<int> codes;
    for (const Posted &p : posted)
        if ((!notify || p.hwnd == notify) && p.message == WM_COMMAND && reinterpret_cast<HWND>(p.lParam) == control)
            codes.push_back(HIWORD(p.wParam));
    return codes;
}

Bitmap PrintClient(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    Bitmap picture(client.right, client.bottom);
    SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(picture.dc()), PRF_CLIENT);
    return picture;
}

Announced CreateAnnounced(const wchar_t *className, HWND parent, Box box, int id, void *parameter) {
    Announced a;
    a.hwnd = CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE, box.x, box.y, box.width, box.height, parent,
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), parameter);
    MSG m{};
    if (a.hwnd && PeekMessageW(&m, a.hwnd, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE))
        a.object = m.lParam;
    PumpMessages();
    return a;
}

ControlForm::ControlForm(const wchar_t *className, Box box, void *parameter) {
    form.OnMessage([this](HWND, UINT message, WPARAM wParam, LPARAM, LRESULT &result) {
        if (message != WM_CTLCOLORLISTBOX || !listBrush)
            return false;
        SetTextColor(reinterpret_cast<HDC>(wParam), listText);
        result = reinterpret_cast<LRESULT>(listBrush);
        return true;
    });
    made_ = CreateAnnounced(className, form, box, 7, parameter);
}

ControlForm::~ControlForm() {
    if (IsWindow(made_.hwnd))
        DestroyWindow(made_.hwnd);
    if (listBrush)
        DeleteObject(listBrush);
    PumpMessages();
}

StoredBlockItem::StoredBlockItem(const wchar_t *className) : className_(className) {
    outline = ZkHostDesignNewOutline();
    item = ZkHostDesignAddItem(outline, 0, 1);
    current_ = this;
    hook_ = SetWindowsHookExW(WH_CBT, &Bind, nullptr, GetCurrentThreadId());
}

StoredBlockItem::~StoredBlockItem() {
    UnhookWindowsHookEx(hook_);
    current_ = nullptr;
    ZkHostDesignFreeOutline(outline);
}

bool StoredBlockItem::Store(const wchar_t *property, std::vector<uint8_t> bytes) {
    bytes.push_back(0);
    bytes.push_back(0);
    return HostPropSet(outline, item, property, bytes.data(), static_cast<int32_t>(bytes.size())) == 1;
}

LRESULT CALLBACK StoredBlockItem::Bind(int code, WPARAM wParam, LPARAM lParam) {
    wchar_t name[64] = {};
    if (code == HCBT_CREATEWND && current_ &&
        (!current_->className_ ||
         (GetClassNameW(reinterpret_cast<HWND>(wParam), name, 64) && lstrcmpW(name, current_->className_) == 0)))
        ZkHostDesignBindWindow(current_->outline, current_->item, reinterpret_cast<HWND>(wParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void ExpectNullControlFailures(const std::vector<NullControlCall> &calls) {
    for (const NullControlCall &row : calls) {
        DebugOutputCapture capture;
        DialogAnswerer answerer(IDOK);
        EXPECT_EQ(row.call(), row.failure) << row.name;
        ASSERT_EQ(answerer.answered(), 1) << row.name;
        const auto texts = answerer.dialogs()[0].StaticTexts();
        ASSERT_FALSE(texts.empty());
        EXPECT_EQ(texts.back(), std::wstring(L"Function '") + row.name +
                                    L"' unable to act because pointer to control instance is NULL.  "
                                    L"This is likely due to interception of ZKM_ControlCreate in Brandle "
                                    L"Builder.  Please remove any such lines from your application.");
        const std::wstring trace = row.words ? std::wstring(row.name) + L" - " + row.words + L"\n" : L"";
        EXPECT_EQ(capture.text(), trace) << row.name;
    }
}

} // namespace zkt
