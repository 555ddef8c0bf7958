// The diagnostics' platform: local memory, the tick count, the host's clock
// and window names, OutputDebugStringW and MessageBoxW.
#pragma once

#include "diag/core/system.h"

namespace zk::diag {

class WinBlocks final : public Blocks {
public:
    Handle Alloc(uint32_t bytes) override;
    Handle ReAlloc(Handle block, uint32_t bytes) override;
    void *Lock(Handle block) override;
    void Unlock(Handle block) override;
    void Free(Handle block) override;
};

class WinSystem final : public System {
public:
    Blocks &Memory() override { return memory_; }
    uint32_t TickCount() override;
    HostDateTime Now() override;
    std::u16string ClockText(const HostDateTime &clock) override;
    std::u16string ActiveWindowName() override;
    void Debug(const char16_t *text) override;
    void Box(const char16_t *text, uint32_t captionId) override;

private:
    WinBlocks memory_;
};

} // namespace zk::diag
