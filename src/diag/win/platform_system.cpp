#include "diag/win/platform_system.h"

#include "frame/win/host.h"

namespace zk::diag {
namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "wide text is UTF-16");

// The host has no operation that drops a string it handed out: each use
// keeps one slot, and the host drops the old string when the next call
// overwrites the slot, so at most one string per use stays alive.
HostStr NameSlot = 0;
HostStr ClockSlot = 0;

// The text of a host string, up to its terminator or the end of its buffer.
std::u16string HostText(HostStr handle) {
    if (!handle)
        return std::u16string();
    int32_t size = 0;
    const wchar_t *text = HostStrLock(handle, &size);
    if (!text || size < 2)
        return std::u16string();
    const size_t chars = wcsnlen(text, static_cast<size_t>(size) / 2);
    return std::u16string(reinterpret_cast<const char16_t *>(text), chars);
}

} // namespace

Blocks::Handle WinBlocks::Alloc(uint32_t bytes) { return LocalAlloc(LMEM_MOVEABLE | LMEM_ZEROINIT, bytes); }

Blocks::Handle WinBlocks::ReAlloc(Handle block, uint32_t bytes) {
    return LocalReAlloc(static_cast<HLOCAL>(block), bytes, LMEM_MOVEABLE | LMEM_ZEROINIT);
}

void *WinBlocks::Lock(Handle block) { return LocalLock(static_cast<HLOCAL>(block)); }
void WinBlocks::Unlock(Handle block) { LocalUnlock(static_cast<HLOCAL>(block)); }
void WinBlocks::Free(Handle block) { LocalFree(static_cast<HLOCAL>(block)); }

uint32_t WinSystem::TickCount() { return GetTickCount(); }

HostDateTime WinSystem::Now() {
    HostDateTime now{};
    HostDateCurrent(&now);
    return now;
}

std::u16string WinSystem::ClockText(const HostDateTime &clock) {
    return HostText(HostDateToStr(clock, L"hh:mm:ss AMPM", &ClockSlot));
}

std::u16string WinSystem::ActiveWindowName() {
    // A host that cannot name the window may leave the slot as it was.
    if (!HostWinGetName(GetActiveWindow(), &NameSlot))
        return std::u16string();
    return HostText(NameSlot);
}

void WinSystem::Debug(const char16_t *text) { OutputDebugStringW(reinterpret_cast<const wchar_t *>(text)); }

void WinSystem::Box(const char16_t *text, uint32_t captionId) {
    const std::wstring caption = LoadText(captionId);
    MessageBoxW(nullptr, reinterpret_cast<const wchar_t *>(text), caption.c_str(), MB_OK | MB_ICONEXCLAMATION);
}

} // namespace zk::diag
