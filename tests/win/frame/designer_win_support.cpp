#include <map>
#include <new>

#include "designer_win_test.h"
#include "frame/win/host.h"

namespace designertest {

namespace {

// String 48 and the other texts come from the library's resources.
class LibraryResources : public testing::Environment {
    void SetUp() override {
        zk::ModuleInstance = LoadLibraryW(L"ZKLIB.dll");
        RegisterTestClasses();
    }
};
const auto *const resources = testing::AddGlobalTestEnvironment(new LibraryResources);

class Throwing : public TestControl {
public:
    Throwing() { throw std::bad_alloc(); }
};

template <class T, const wchar_t *const *Name, zk::BootstrapForm Form>
struct Traits {
    using Object = T;
    static constexpr const wchar_t *className = *Name;
    static constexpr zk::BootstrapForm form = Form;
};

constexpr const wchar_t *subclassName = kSubclassClass;
constexpr const wchar_t *keepName = kKeepClass;
constexpr const wchar_t *failingName = kFailingClass;
constexpr const wchar_t *failingKeepName = kFailingKeepClass;
constexpr const wchar_t *wrapperName = kWrapperClass;

using SubclassTraits = Traits<TestControl, &subclassName, zk::BootstrapForm::AttachOrSubclass>;
using KeepTraits = Traits<TestControl, &keepName, zk::BootstrapForm::KeepProcedure>;
using FailingTraits = Traits<Throwing, &failingName, zk::BootstrapForm::AttachOrSubclass>;
using FailingKeepTraits = Traits<Throwing, &failingKeepName, zk::BootstrapForm::KeepProcedure>;
using WrapperTraits = Traits<WrapperControl, &wrapperName, zk::BootstrapForm::AttachOrSubclass>;

// As the library's registry does: one named procedure per class that hands
// every message to the class's bootstrap.
template <class T>
LRESULT CALLBACK OuterProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return zk::BootstrapProcedure<T>(window, message, wParam, lParam);
}

WNDPROC subclassProcedure = nullptr;
std::map<HWND, LPARAM> keptPointers;

// The host's class over a control class: it keeps what ZKM_ControlCreate
// carries, then lets the control's class see every message.
LRESULT CALLBACK HostProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == ZKM_ControlCreate)
        keptPointers[window] = lParam;
    if (message == WM_NCDESTROY)
        keptPointers.erase(window);
    return CallWindowProcW(subclassProcedure, window, message, wParam, lParam);
}

void Register(const wchar_t *name, WNDPROC procedure) {
    WNDCLASSW wc{};
    wc.style = CS_DBLCLKS | CS_GLOBALCLASS;
    wc.lpfnWndProc = procedure;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.lpszClassName = name;
    if (!RegisterClassW(&wc))
        ADD_FAILURE() << "cannot register a test class, error " << GetLastError();
}

HostOutline bindOutline = 0;
HostItem bindItem = 0;

LRESULT CALLBACK BindHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND)
        ZkHostDesignBindWindow(bindOutline, bindItem, reinterpret_cast<HWND>(wParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

} // namespace

void RegisterTestClasses() {
    Register(kSubclassClass, &OuterProc<SubclassTraits>);
    Register(kKeepClass, &OuterProc<KeepTraits>);
    Register(kFailingClass, &OuterProc<FailingTraits>);
    Register(kFailingKeepClass, &OuterProc<FailingKeepTraits>);
    Register(kWrapperClass, &OuterProc<WrapperTraits>);
    subclassProcedure = &OuterProc<SubclassTraits>;
    Register(kHostClass, &HostProc);
}

LPARAM HostKeptPointer(HWND window) {
    const auto found = keptPointers.find(window);
    return found == keptPointers.end() ? 0 : found->second;
}

HWND MakeControl(const wchar_t *className, HWND parent, int id, void *parameter, DWORD style) {
    return CreateWindowExW(0, className, L"", style, 10, 10, 120, 80, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), parameter);
}

BindNewWindows::BindNewWindows(HostOutline outline, HostItem item) {
    bindOutline = outline;
    bindItem = item;
    hook_ = SetWindowsHookExW(WH_CBT, &BindHook, nullptr, GetCurrentThreadId());
    EXPECT_NE(hook_, nullptr);
}

BindNewWindows::~BindNewWindows() {
    if (hook_)
        UnhookWindowsHookEx(hook_);
}

LRESULT WrapperControl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_CREATE)
        return TestControl::WindowProc(message, wParam, lParam);
    if (TestControl::WindowProc(message, wParam, lParam) == -1)
        return -1;
    zk::SPropGeneric block;
    if (zk::LoadCreationBlock(GetSafeHwnd(), reinterpret_cast<const CREATESTRUCTW *>(lParam), zk::kPropCalendar,
                              block)) {
        ApplyGenericBlock(block);
        loaded = true;
    }
    return 0;
}

} // namespace designertest
