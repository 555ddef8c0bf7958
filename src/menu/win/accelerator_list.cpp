#include "menu/win/accelerator_list.h"

#include "frame/core/livehandles.h"
#include "frame/win/localblock.h"
#include "menu/core/accelerator_match.h"

namespace zk::menu {

namespace {

HLOCAL AccelFirst = nullptr;
HLOCAL AccelLast = nullptr;
HHOOK AccelHook = nullptr;

// The records by key, so that a key finds its first record without a walk
// of the list: a key with no record costs the hook one look-up.
AccelIndex &Index() {
    static AccelIndex *index = new AccelIndex(); // records outlive static teardown
    return *index;
}

std::uintptr_t Word(HLOCAL handle) { return reinterpret_cast<std::uintptr_t>(handle); }

// The hook procedure is the library's export, found the way the host finds
// it, so that the hook runs the library's own list.
HHOOK InstallHook() {
    HMODULE module = GetModuleHandleW(L"ZKLIB");
    FARPROC procedure = module ? GetProcAddress(module, "KeyboardHookProc") : nullptr;
    return procedure
               ? SetWindowsHookExW(WH_KEYBOARD, reinterpret_cast<HOOKPROC>(procedure), module, GetCurrentThreadId())
               : nullptr;
}

bool SetNext(HLOCAL record, HLOCAL next) {
    return LocalWith<AccelRecord>(record, [&](AccelRecord &r) { r.next = next; });
}
bool SetPrevious(HLOCAL record, HLOCAL previous) {
    return LocalWith<AccelRecord>(record, [&](AccelRecord &r) { r.previous = previous; });
}
void SetSending(HLOCAL record, uint32_t sending) {
    if (IsLive(LiveKind::Accelerator, record))
        LocalWith<AccelRecord>(record, [&](AccelRecord &r) { r.sending = sending; });
}

} // namespace

HLOCAL LoadAccelerator(HWND window, uint32_t message, uint32_t modifiers, uint16_t key, uint32_t value) {
    if (!IsWindow(window))
        return nullptr;
    HLOCAL record = LocalBlockNew(sizeof(AccelRecord));
    if (!record)
        return nullptr;
    const bool filled = LocalWith<AccelRecord>(record, [&](AccelRecord &r) {
        r.modifiers = modifiers;
        r.key = key;
        r.window = window;
        r.message = message;
        r.value = value;
        r.previous = AccelLast;
    });
    if (!filled) {
        LocalFree(record);
        return nullptr;
    }
    try {
        LiveAdd(LiveKind::Accelerator, record);
        Index().Add(key, AccelEntry{Word(record), modifiers});
    } catch (...) {
        LiveRemove(LiveKind::Accelerator, record);
        LocalFree(record);
        return nullptr;
    }
    const auto undo = [&] {
        Index().Remove(key, Word(record));
        LiveRemove(LiveKind::Accelerator, record);
        LocalFree(record);
        return nullptr;
    };
    if (!AccelFirst) {
        HHOOK hook = InstallHook();
        if (!hook)
            return undo();
        AccelHook = hook;
        AccelFirst = record;
    } else if (!SetNext(AccelLast, record)) {
        return undo();
    }
    AccelLast = record;
    return record;
}

bool FreeAccelerator(HLOCAL accelerator) {
    AccelRecord record{};
    if (!IsLive(LiveKind::Accelerator, accelerator) || !LocalCopy(accelerator, &record))
        return false;
    // The neighbours are linked past the record only when both will lock.
    LocalPin<AccelRecord> previous(record.previous), next(record.next);
    if ((record.previous && !previous) || (record.next && !next))
        return false;
    if (previous)
        previous->next = record.next;
    if (next)
        next->previous = record.previous;
    if (AccelFirst == accelerator)
        AccelFirst = record.next;
    if (AccelLast == accelerator)
        AccelLast = record.previous;
    if (!AccelFirst && AccelHook) {
        UnhookWindowsHookEx(AccelHook);
        AccelHook = nullptr;
    }
    Index().Remove(record.key, Word(accelerator));
    LiveRemove(LiveKind::Accelerator, accelerator);
    LocalFree(accelerator);
    return true;
}

LRESULT HookKey(int code, WPARAM key, LPARAM data) {
    if (code < 0 || !AccelFirst || key > 0xFFFF)
        return CallNextHookEx(AccelHook, code, key, data);
    // The modifiers are read only for a key that has records: most keys
    // have none, and each read of the key state may cost a round trip.
    const auto virtualKey = static_cast<uint16_t>(key);
    if (!Index().HasKey(virtualKey))
        return CallNextHookEx(AccelHook, code, key, data);
    const KeyState held{GetKeyState(VK_SHIFT) < 0, GetKeyState(VK_CONTROL) < 0, GetKeyState(VK_MENU) < 0};
    const AccelEntry *entry = Index().FirstMatch(virtualKey, held);
    AccelRecord record{};
    if (!entry || !LocalCopy(reinterpret_cast<HLOCAL>(entry->handle), &record))
        return CallNextHookEx(AccelHook, code, key, data);
    const HLOCAL handle = reinterpret_cast<HLOCAL>(entry->handle);
    HWND foreground = GetForegroundWindow();
    const bool inForeground = foreground == record.window || IsChild(foreground, record.window);
    // The transition bit, bit 31 of the key data, is set for a key going up.
    const bool keyUp = static_cast<int32_t>(data) < 0;
    switch (DecideKey(inForeground, keyUp, record.sending != 0)) {
    case KeyAction::Pass:
        return CallNextHookEx(AccelHook, code, key, data);
    case KeyAction::Swallow:
        return 1;
    case KeyAction::Send:
        // The application may free the record while it handles the message.
        SetSending(handle, 1);
        SendMessageW(record.window, record.message, 0, static_cast<LPARAM>(record.value));
        SetSending(handle, 0);
        return 1;
    case KeyAction::Skip:
        SetSending(handle, 0);
        return 1;
    }
    return 1;
}

} // namespace zk::menu
