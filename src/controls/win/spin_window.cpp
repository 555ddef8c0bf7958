// The spin field: a plain window procedure over the record in a moveable
// local block, an edit subclassed beside it, and the private messages that
// set and step the value. The record is copied out or changed under a
// short lock and never held locked while a message is sent.
#include <string>

#include "controls/core/spin_layout.h"
#include "controls/win/controls_bootstrap.h"
#include "controls/win/ctlcolor.h"
#include "controls/win/spin_paint.h"
#include "controls/win/spin_record.h"
#include "frame/win/crack.h"
#include "frame/win/gdi.h"
#include "frame/win/host.h"
#include "frame/win/localblock.h"
#include "frame/win/paint_buffer.h"
#include "frame/win/prop_block.h"
#include "frame/win/window.h"

namespace zk::ctl {

namespace {

constexpr UINT_PTR kRepeatTimer = 1;
// WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL.
constexpr DWORD kEditStyle = 0x50810080;
constexpr UINT kEditOnlyMessage = 0x41F;
constexpr UINT kLocalFlags = LMEM_MOVEABLE | LMEM_ZEROINIT; // 0x42
constexpr uint32_t kHostDataField = 8, kHostMultiLine = 16;
constexpr int kHostBackground = 5;

std::wstring Wide(std::u16string_view text) { return std::wstring(text.begin(), text.end()); }

// The host's number parsing. The whole part is read into 32 bits, so that
// values beyond a 16-bit short parse whole.
bool IsValidNumber(std::u16string_view text) { return HostStrIsValidNumber(Wide(text).c_str()) == 1; }
bool IntegerOf(std::u16string_view text, int32_t &value) {
    HostNumber number{};
    HostStrToNumber(&number, Wide(text).c_str());
    return HostNumberToLong(&number, &value) != 0;
}
const NumberReader kHostNumbers{&IsValidNumber, &IntegerOf};

bool Copy(HWND window, SpinRecord &out) { return LocalCopy(SpinHandle(window), &out); }

template <class F>
bool Change(HWND window, F &&f) {
    return LocalWith<SpinRecord>(SpinHandle(window), std::forward<F>(f));
}

std::u16string TextOf(HWND window) {
    const int length = GetWindowTextLengthW(window);
    if (length <= 0)
        return {};
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), length + 1)));
    return std::u16string(text.begin(), text.end());
}

// The text of the spin window goes to its edit when it has one.
void Show(HWND self, const SpinValues &values) {
    SetWindowTextW(self, Wide(FormatValue(values.value, values.decimalAdjust)).c_str());
}

void Empty(HWND edit) {
    if (IsWindow(edit))
        SetWindowTextW(edit, L"");
}

void Redraw(HWND window) { RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

Rect ClientOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return FromRECT(client);
}

void EndPress(HWND self, UINT_PTR timer) {
    if (GetCapture() == self)
        ReleaseCapture();
    KillTimer(self, timer);
}

LRESULT Step(HWND self, bool up) {
    SpinRecord r;
    if (!Copy(self, r))
        return 0;
    SpinValues values = r.values;
    const std::u16string text = TextOf(self);
    if (up)
        StepUp(values, text, kHostNumbers);
    else
        StepDown(values, text, kHostNumbers);
    Change(self, [&](SpinRecord &rec) { rec.values.value = values.value; });
    Show(self, values);
    return 1;
}

LRESULT CALLBACK SpinEditProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam);

// The design block read over the defaults: the item's property first, else
// a block handed in the creation parameter.
void LoadDesignBlock(HWND self, const CREATESTRUCTW *create, SpinValues &values) {
    SpinBlock block{values.minimum, values.maximum, values.increment, values.decimalAdjust};
    const HostItem item = HostDesignGetItem(self);
    bool found = item && SpinBlockLoad(HostDesignGetOutline(self), item, block);
    const auto *parameter = static_cast<const SpinDesignParameter *>(create ? create->lpCreateParams : nullptr);
    if (!found && parameter && parameter->size == kSpinDesignParameterSize && parameter->record &&
        GlobalSize(parameter->record) >= sizeof(int32_t) * 4) {
        if (const auto *stored = static_cast<const int32_t *>(GlobalLock(parameter->record))) {
            block = SpinBlock{stored[0], stored[1], stored[2], stored[3]};
            GlobalUnlock(parameter->record);
        }
    }
    values.minimum = block.minimum;
    values.maximum = block.maximum;
    values.increment = block.increment;
    values.decimalAdjust = block.decimalAdjust;
}

HWND MakeEdit(HWND self, HLOCAL handle, const CREATESTRUCTW *create, HFONT font, WNDPROC &former) {
    const SpinLayout layout(ClientOf(self));
    HWND edit = CreateWindowExW(0, L"edit", L"", kEditStyle, layout.edit.left, layout.edit.top, layout.edit.Width(),
                                layout.edit.Height(), self, reinterpret_cast<HMENU>(INT_PTR{1}),
                                create ? create->hInstance : nullptr, nullptr);
    if (!edit)
        return nullptr;
    if (PropSet(edit, kSpinParentProperty, handle)) {
        SendMessageW(edit, WM_SETFONT, reinterpret_cast<WPARAM>(font), 0);
        former = ReplaceProcedure(edit, &SpinEditProc);
        if (former)
            return edit;
        PropRemove(edit, kSpinParentProperty);
    }
    DestroyWindow(edit);
    return nullptr;
}

LRESULT OnCreate(HWND self, const CREATESTRUCTW *create) {
    HLOCAL handle = LocalAlloc(kLocalFlags, sizeof(SpinRecord));
    if (!handle)
        return -1;
    SpinValues values;
    LoadDesignBlock(self, create, values);
    const bool stored = LocalWith<SpinRecord>(handle, [&](SpinRecord &r) {
        r.values = values;
        r.self = self;
    });
    if (!stored || !PropSet(self, kSpinParentProperty, handle)) {
        LocalFree(handle);
        return -1;
    }
    SetWindowLongW(self, 0, static_cast<LONG>(reinterpret_cast<LONG_PTR>(handle)));
    if (!HasStoredProperties(create)) {
        Change(self, [](SpinRecord &r) { r.flags |= SPF_Design; });
        return 0;
    }
    WNDPROC former = nullptr;
    HWND edit = MakeEdit(self, handle, create, nullptr, former);
    if (!edit) {
        PropRemove(self, kSpinParentProperty);
        SetWindowLongW(self, 0, 0);
        LocalFree(handle);
        return -1;
    }
    Change(self, [&](SpinRecord &r) {
        r.edit = edit;
        r.editProc = former;
    });
    return 0;
}

void OnDestroy(HWND self) {
    HLOCAL handle = SpinHandle(self);
    SpinRecord r;
    if (!handle || !LocalCopy(handle, &r))
        return;
    KillTimer(self, r.timer);
    if (IsWindow(r.edit)) {
        if (r.editProc)
            SetWindowLongPtrW(r.edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(r.editProc));
        PropRemove(r.edit, kSpinParentProperty);
        DestroyWindow(r.edit);
    }
    PropRemove(self, kSpinParentProperty);
    SetWindowLongW(self, 0, 0);
    LocalFree(handle);
}

LRESULT OnSetFocus(HWND self, HWND from) {
    SpinRecord r;
    if (!Copy(self, r))
        return 0;
    Change(self, [&](SpinRecord &rec) { rec.lastFocus = from; });
    if (from && from == r.edit) {
        // The focus came back out of the edit: a back-tab, which goes on to
        // the window before the spin field.
        HWND previous = GetWindow(self, GW_HWNDPREV);
        SetFocus(previous);
        const uint32_t type = HostWinType(previous);
        if (type == kHostDataField || type == kHostMultiLine)
            SendMessageW(previous, EM_SETSEL, 0, -1);
    } else if (IsWindow(r.edit)) {
        SetFocus(r.edit);
        SendMessageW(r.edit, EM_SETSEL, 0, -1);
    }
    return 0;
}

LRESULT OnPress(HWND self, Point at) {
    SpinRecord r;
    if (!Copy(self, r))
        return 0;
    if (GetFocus() != r.edit || !r.edit)
        SetFocus(self);
    const SpinButton hit = SpinLayout(ClientOf(self)).ButtonAt(at);
    if (hit != SpinButton::None) {
        Change(self, [&](SpinRecord &rec) { rec.flags |= hit == SpinButton::Up ? SPF_UpDown : SPF_DownDown; });
        Redraw(self);
        SetCapture(self);
    }
    // The timer runs after any press, on a button or not.
    const UINT_PTR timer = SetTimer(self, kRepeatTimer, kRepeatPeriod, nullptr);
    Change(self, [&](SpinRecord &rec) {
        rec.timer = static_cast<uint32_t>(timer);
        rec.pressTick = GetTickCount();
    });
    return 0;
}

LRESULT OnTimer(HWND self) {
    SpinRecord r;
    if (!Copy(self, r) || !RepeatDue(GetTickCount(), r.pressTick))
        return 0;
    if (!IsWindowEnabled(GetParent(self))) {
        EndPress(self, r.timer);
        Change(self, [](SpinRecord &rec) { rec.flags &= static_cast<uint16_t>(~(SPF_UpDown | SPF_DownDown)); });
        Redraw(self);
        return 0;
    }
    if (r.flags & SPF_UpDown)
        SendMessageW(self, ZKM_SpinUp, 0, 0);
    else if (r.flags & SPF_DownDown)
        SendMessageW(self, ZKM_SpinDown, 0, 0);
    return 0;
}

// A press does not come back when the pointer returns to its button.
LRESULT OnMouseMove(HWND self, Point at) {
    SpinRecord r;
    if (GetCapture() != self || !Copy(self, r))
        return 0;
    const SpinButton hit = SpinLayout(ClientOf(self)).ButtonAt(at);
    const uint16_t left = (r.flags & SPF_UpDown) && hit != SpinButton::Up       ? SPF_UpDown
                          : (r.flags & SPF_DownDown) && hit != SpinButton::Down ? SPF_DownDown
                                                                                : 0;
    if (left) {
        Change(self, [&](SpinRecord &rec) { rec.flags &= static_cast<uint16_t>(~left); });
        Redraw(self);
        EndPress(self, r.timer);
    }
    return 0;
}

// The press gives its step at the release, inside the button it began on.
LRESULT OnRelease(HWND self, Point at) {
    SpinRecord r;
    if (!Copy(self, r))
        return 0;
    if (GetCapture() == self) {
        const SpinButton hit = SpinLayout(ClientOf(self)).ButtonAt(at);
        UINT step = 0;
        uint16_t clicked = 0;
        if ((r.flags & SPF_UpDown) && hit == SpinButton::Up) {
            step = ZKM_SpinUp;
            clicked = SPF_UpClicked;
        } else if ((r.flags & SPF_DownDown) && hit == SpinButton::Down) {
            step = ZKM_SpinDown;
            clicked = SPF_DownClicked;
        }
        Change(self, [&](SpinRecord &rec) {
            rec.flags = static_cast<uint16_t>((rec.flags & ~(SPF_UpDown | SPF_DownDown)) | clicked);
        });
        Redraw(self);
        if (step)
            SendMessageW(self, step, 0, 0);
    }
    EndPress(self, r.timer);
    return 0;
}

void OnPaint(HWND self, HDC given) {
    SpinRecord r;
    if (!Copy(self, r)) {
        if (!given)
            ValidateRect(self, nullptr);
        return;
    }
    const Rect client = ClientOf(self);
    const SpinLayout layout(client);
    const bool design = (r.flags & SPF_Design) != 0;
    const COLORREF back = design ? HostWinGetColor(self, kHostBackground) : 0;
    // Only the buttons' strip is copied beside an edit, which paints itself.
    auto paint = [&](HDC dc) {
        Rect area = given ? client : ClipBox(dc);
        if (!design)
            area = area.Intersect(layout.Strip());
        PaintBuffer buffer;
        buffer.Paint(self, dc, client, area,
                     [&](HDC off, const Rect &) { PaintSpin(off, layout, r.flags, design, back); });
    };
    if (given) {
        paint(given);
    } else {
        PaintDC dc(self);
        if (dc)
            paint(dc);
    }
    Change(self, [](SpinRecord &rec) { rec.flags &= static_cast<uint16_t>(~(SPF_UpClicked | SPF_DownClicked)); });
}

LRESULT SpinMessage(HWND self, UINT message, WPARAM wParam, LPARAM lParam) {
    SpinRecord r;
    if (!Copy(self, r))
        return 0;
    switch (message) {
    case ZKM_SpinSetMin:
    case ZKM_SpinSetMax:
        Change(self, [&](SpinRecord &rec) {
            (message == ZKM_SpinSetMin ? rec.values.minimum : rec.values.maximum) = static_cast<int32_t>(lParam);
        });
        Empty(r.edit);
        return 1;
    case ZKM_SpinSetStep:
        if (lParam == 0)
            return 0;
        Change(self, [&](SpinRecord &rec) {
            rec.values.decimalAdjust = static_cast<int32_t>(wParam);
            rec.values.increment = static_cast<int32_t>(lParam);
        });
        Empty(r.edit);
        return 1;
    case ZKM_SpinSetValue: {
        // Refused only below the minimum and above the maximum at once: in
        // effect stored unchecked.
        const auto value = static_cast<int32_t>(lParam);
        if (!AcceptsValue(r.values, value))
            return 0;
        Change(self, [&](SpinRecord &rec) { rec.values.value = value; });
        r.values.value = value;
        Show(self, r.values);
        return 1;
    }
    case ZKM_SpinUp:
        return Step(self, true);
    case ZKM_SpinDown:
        return Step(self, false);
    case ZKM_SpinGetText: {
        const std::u16string text = IsWindow(self) ? TextOf(self) : std::u16string();
        return static_cast<LRESULT>(StrFromView(Wide(text)));
    }
    default:
        return IsWindow(r.edit) ? SendMessageW(r.edit, message, wParam, lParam) : 0;
    }
}

LRESULT Handle(HWND self, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        return OnCreate(self, reinterpret_cast<const CREATESTRUCTW *>(lParam));
    case WM_DESTROY:
        OnDestroy(self);
        return DefWindowProcW(self, message, wParam, lParam);
    case ZKM_SpinSetMin:
    case ZKM_SpinSetMax:
    case ZKM_SpinSetStep:
    case ZKM_SpinSetValue:
    case ZKM_SpinUp:
    case ZKM_SpinDown:
    case ZKM_SpinGetText:
    case kEditOnlyMessage:
    case EM_SETREADONLY:
        return SpinMessage(self, message, wParam, lParam);
    case WM_GETTEXT:
    case WM_SETTEXT:
    case WM_GETTEXTLENGTH: {
        SpinRecord r;
        if (Copy(self, r) && IsWindow(r.edit))
            return SendMessageW(r.edit, message, wParam, lParam);
        return DefWindowProcW(self, message, wParam, lParam);
    }
    case WM_SETFONT: {
        SpinRecord r;
        if (Copy(self, r)) {
            Change(self, [&](SpinRecord &rec) { rec.font = reinterpret_cast<HFONT>(wParam); });
            if (IsWindow(r.edit))
                SendMessageW(r.edit, WM_SETFONT, wParam, lParam);
        }
        return 0;
    }
    case WM_GETFONT: {
        SpinRecord r;
        return Copy(self, r) ? reinterpret_cast<LRESULT>(r.font) : 0;
    }
    case WM_COMMAND: {
        SpinRecord r;
        if (HIWORD(wParam) == EN_CHANGE && Copy(self, r) && r.edit && reinterpret_cast<HWND>(lParam) == r.edit)
            HostFieldSetEditFlag(self, 1);
        return DefWindowProcW(self, message, wParam, lParam);
    }
    case WM_SETFOCUS:
        return OnSetFocus(self, reinterpret_cast<HWND>(wParam));
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        return OnPress(self, MousePoint(lParam));
    case WM_TIMER:
        return OnTimer(self);
    case WM_MOUSEMOVE:
        return OnMouseMove(self, MousePoint(lParam));
    case WM_LBUTTONUP:
        return OnRelease(self, MousePoint(lParam));
    case WM_PAINT:
        OnPaint(self, nullptr);
        return 0;
    case WM_PRINTCLIENT:
        if (wParam)
            OnPaint(self, reinterpret_cast<HDC>(wParam));
        return 0;
    default:
        if (IsControlColourMessage(message))
            return SendMessageW(GetParent(self), message, wParam, lParam);
        return DefWindowProcW(self, message, wParam, lParam);
    }
}

LRESULT CALLBACK SpinEditProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        SpinRecord r;
        if (!Copy(edit, r))
            return DefWindowProcW(edit, message, wParam, lParam);
        if (message == WM_KEYDOWN && (wParam == VK_UP || wParam == VK_DOWN)) {
            SendMessageW(r.self, wParam == VK_UP ? ZKM_SpinUp : ZKM_SpinDown, 0, 0);
            return 1;
        }
        if (message == WM_SETFOCUS && HostFieldValidate(r.self, 1, 0) == 0) {
            HWND from = reinterpret_cast<HWND>(wParam);
            SetFocus(from != r.self ? from : r.lastFocus);
            return 1;
        }
        return r.editProc ? CallWindowProcW(r.editProc, edit, message, wParam, lParam)
                          : DefWindowProcW(edit, message, wParam, lParam);
    } catch (...) {
        return 0;
    }
}

} // namespace

bool ApplySpinBlock(HWND spin, const SpinBlock &block) {
    return Change(spin, [&](SpinRecord &r) {
        r.values.minimum = block.minimum;
        r.values.maximum = block.maximum;
        r.values.increment = block.increment;
        r.values.decimalAdjust = block.decimalAdjust;
    });
}

LRESULT CALLBACK SpinFieldProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        return Handle(window, message, wParam, lParam);
    } catch (...) {
        return message == WM_CREATE ? -1 : 0;
    }
}

} // namespace zk::ctl
