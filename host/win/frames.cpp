// The host's frame windows and their records.
#include "frames.h"

#include <memory>
#include <unordered_map>

#include "zkhost.h"
#include "zkhostctl.h"

namespace hostwin {
namespace {

constexpr const wchar_t *kFrameClass = L"Marlo:AccFrame";
constexpr const wchar_t *kMdiFrameClass = L"Marlo:MDIFrame";
constexpr const wchar_t *kMdiChildClass = L"Marlo:MDIChild";

std::unordered_map<HWND, std::unique_ptr<HostFrame>> &Frames() {
    static std::unordered_map<HWND, std::unique_ptr<HostFrame>> frames;
    return frames;
}

HINSTANCE HostInstance() {
    static HINSTANCE module = [] {
        HMODULE m = nullptr;
        GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<LPCWSTR>(&Frames), &m);
        return m;
    }();
    return module;
}

// What CreateFrame hands to the window's first message.
struct Creation {
    int32_t kind;
    HMENU menu;
    bool ribbon;
};

HostFrame *Add(HWND window, int32_t kind) {
    auto frame = std::make_unique<HostFrame>();
    frame->window = window;
    frame->kind = kind;
    HostFrame *raw = frame.get();
    Frames()[window] = std::move(frame);
    return raw;
}

void Drop(HWND window) {
    auto &frames = Frames();
    auto it = frames.find(window);
    if (it == frames.end())
        return;
    if (it->second->ourMenu && (it->second->kind == HOST_FRAME_Frame || it->second->kind == HOST_FRAME_MDIFrame))
        DestroyMenu(it->second->ourMenu);
    frames.erase(it);
}

// Messages every host window answers alike: the library's notice of a
// chosen item is the application's to handle; here it is logged.
bool Common(HWND window, UINT message, LPARAM lParam) {
    if (message == kMenuCommandMessage) {
        if (HostFrame *frame = FindFrame(window))
            Log(*frame, L"MenuCommand(" + std::to_wstring(static_cast<int32_t>(lParam)) + L")");
        return true;
    }
    if (message == WM_NCDESTROY) {
        Drop(window);
        return false;
    }
    return false;
}

void Layout(HostFrame &frame) {
    RECT client{};
    GetClientRect(frame.window, &client);
    const int barHeight = frame.bar ? BarHeight(frame) : 0;
    if (frame.bar)
        MoveWindow(frame.bar, 0, 0, client.right, barHeight, TRUE);
    if (frame.mdiClient)
        MoveWindow(frame.mdiClient, 0, barHeight, client.right,
                   client.bottom > barHeight ? client.bottom - barHeight : 0, TRUE);
}

LRESULT Created(HWND window, LPARAM lParam) {
    const auto *create = reinterpret_cast<const CREATESTRUCTW *>(lParam);
    const auto *how = static_cast<const Creation *>(create->lpCreateParams);
    HostFrame *frame = Add(window, how->kind);
    frame->ourMenu = how->menu;
    frame->ribbon = how->ribbon;
    if (how->kind == HOST_FRAME_MDIFrame) {
        CLIENTCREATESTRUCT client{nullptr, static_cast<UINT>(kFirstChildId)};
        frame->mdiClient = CreateWindowExW(WS_EX_CLIENTEDGE, L"MDICLIENT", nullptr,
                                           WS_CHILD | WS_CLIPCHILDREN | WS_VSCROLL | WS_HSCROLL | WS_VISIBLE, 0, 0, 0,
                                           0, window, nullptr, HostInstance(), &client);
        if (!frame->mdiClient)
            return -1;
    }
    ReadStructure(*frame);
    frame->bar = CreateBar(*frame, how->ribbon);
    if (!frame->bar)
        return -1;
    Layout(*frame);
    return 0;
}

LRESULT CALLBACK FrameProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CREATE)
        return Created(window, lParam);
    if (message == WM_SIZE) {
        if (HostFrame *frame = FindFrame(window))
            Layout(*frame);
        return 0;
    }
    if (Common(window, message, lParam))
        return 0;
    return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK MdiFrameProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CREATE)
        return Created(window, lParam);
    HostFrame *frame = FindFrame(window);
    if (message == WM_SIZE) {
        if (frame)
            Layout(*frame);
        return 0;
    }
    HWND client = frame ? frame->mdiClient : nullptr;
    if (Common(window, message, lParam))
        return 0;
    return DefFrameProcW(window, client, message, wParam, lParam);
}

LRESULT CALLBACK MdiChildProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (Common(window, message, lParam))
        return 0;
    return DefMDIChildProcW(window, message, wParam, lParam);
}

INT_PTR CALLBACK HostDialogProc(HWND window, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        return TRUE;
    if (Common(window, message, lParam)) {
        SetWindowLongPtrW(window, DWLP_MSGRESULT, 0);
        return TRUE;
    }
    return FALSE;
}

bool RegisterClasses() {
    static const bool registered = [] {
        const struct {
            const wchar_t *name;
            WNDPROC proc;
            int background;
        } classes[] = {
            {kFrameClass, FrameProc, COLOR_APPWORKSPACE + 1},
            {kMdiFrameClass, MdiFrameProc, COLOR_APPWORKSPACE + 1},
            {kMdiChildClass, MdiChildProc, COLOR_WINDOW + 1},
        };
        for (const auto &c : classes) {
            WNDCLASSW wc{};
            if (GetClassInfoW(HostInstance(), c.name, &wc))
                continue;
            wc.style = CS_DBLCLKS;
            wc.lpfnWndProc = c.proc;
            wc.hInstance = HostInstance();
            wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
            wc.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(c.background));
            wc.lpszClassName = c.name;
            if (!RegisterClassW(&wc))
                return false;
        }
        return true;
    }();
    return registered;
}

HWND CreateDialogWindow(HWND parent, const wchar_t *title, HMENU menu) {
    struct alignas(4) Template {
        DLGTEMPLATE dialog;
        WORD menu, windowClass, title;
    } t{};
    t.dialog.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
    t.dialog.cx = 200;
    t.dialog.cy = 100;
    HWND dialog = CreateDialogIndirectParamW(HostInstance(), &t.dialog, parent, HostDialogProc, 0);
    if (!dialog)
        return nullptr;
    Add(dialog, HOST_FRAME_Dialog);
    SetWindowTextW(dialog, title ? title : L"");
    if (menu)
        SetMenu(dialog, menu);
    SetWindowPos(dialog, nullptr, 60, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    ShowWindow(dialog, SW_SHOWNA);
    return dialog;
}

HWND CreateMdiChild(HWND parent, const wchar_t *title) {
    HostFrame *frame = FindFrame(parent);
    if (!frame || frame->kind != HOST_FRAME_MDIFrame || !frame->mdiClient)
        return nullptr;
    HWND child = CreateMDIWindowW(kMdiChildClass, title ? title : L"", WS_VISIBLE | WS_OVERLAPPEDWINDOW, 10, 10, 220,
                                  140, frame->mdiClient, HostInstance(), 0);
    if (child)
        Add(child, HOST_FRAME_MDIChild);
    return child;
}

class PlatformSource final : public zkh::MenuSource {
public:
    int Count(uint64_t menu) const override {
        HMENU m = reinterpret_cast<HMENU>(static_cast<uintptr_t>(menu));
        return IsMenu(m) ? GetMenuItemCount(m) : -1;
    }
    bool Read(uint64_t menu, int position, zkh::PlatformItem &item, bool withText) const override {
        HMENU m = reinterpret_cast<HMENU>(static_cast<uintptr_t>(menu));
        MENUITEMINFOW info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_ID | MIIM_SUBMENU | MIIM_STATE | MIIM_FTYPE | (withText ? MIIM_STRING : 0);
        if (!GetMenuItemInfoW(m, static_cast<UINT>(position), TRUE, &info))
            return false;
        item.submenu = reinterpret_cast<uintptr_t>(info.hSubMenu);
        item.id = info.hSubMenu ? -1 : static_cast<int32_t>(info.wID);
        item.state = (info.fState & (MFS_CHECKED | MFS_GRAYED)) | (info.fType & MFT_SEPARATOR);
        item.text.clear();
        if (withText && !(info.fType & (MFT_OWNERDRAW | MFT_BITMAP | MFT_SEPARATOR)) && info.cch > 0) {
            std::wstring text(info.cch + 1, L'\0');
            info.fMask = MIIM_STRING;
            info.dwTypeData = text.data();
            info.cch = static_cast<UINT>(text.size());
            if (GetMenuItemInfoW(m, static_cast<UINT>(position), TRUE, &info))
                item.text.assign(reinterpret_cast<const char16_t *>(text.c_str()), info.cch);
        }
        return true;
    }
};

} // namespace

HostFrame *FindFrame(HWND window) {
    if (!window)
        return nullptr;
    auto &frames = Frames();
    auto it = frames.find(window);
    if (it == frames.end())
        return nullptr;
    if (!IsWindow(window)) {
        frames.erase(it);
        return nullptr;
    }
    return it->second.get();
}

HostFrame *FindMenuFrame(HWND window) {
    HostFrame *frame = FindFrame(window);
    return frame && (frame->kind == HOST_FRAME_Frame || frame->kind == HOST_FRAME_MDIFrame) ? frame : nullptr;
}

void Log(HostFrame &frame, const std::wstring &line) {
    frame.log += line;
    frame.log += L'\n';
}

const zkh::MenuSource &PlatformMenus() {
    static const PlatformSource source;
    return source;
}

void ReadStructure(HostFrame &frame) {
    frame.structure.Attach(PlatformMenus(), reinterpret_cast<uintptr_t>(frame.ourMenu));
}

HWND CreateFrame(int32_t kind, HWND parent, const wchar_t *title, HMENU menu, uint32_t options) {
    if (!RegisterClasses())
        return nullptr;
    switch (kind) {
    case HOST_FRAME_Frame:
    case HOST_FRAME_MDIFrame: {
        Creation how{kind, menu, kind == HOST_FRAME_MDIFrame && (options & ZKHOST_FRAME_Ribbon) != 0};
        return CreateWindowExW(0, kind == HOST_FRAME_Frame ? kFrameClass : kMdiFrameClass, title ? title : L"",
                               WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VISIBLE, 40, 40, 480, 320, parent, nullptr,
                               HostInstance(), &how);
    }
    case HOST_FRAME_MDIChild:
        return CreateMdiChild(parent, title);
    case HOST_FRAME_Dialog:
        return CreateDialogWindow(parent, title, menu);
    default:
        return nullptr;
    }
}

} // namespace hostwin
