// What the application's diagnostics need of the platform: moveable memory
// blocks, the tick count and the host's clock, the active window's name, and
// the two places output goes (the debugger and a message box). The platform
// gives the real ones; the core's tests give stand-ins they control.
#pragma once

#include <cstdint>
#include <string>

#include "zkrecord.h"

namespace zk::diag {

// Moveable local memory, reached through a handle and locked for access.
class Blocks {
public:
    using Handle = void *;
    virtual ~Blocks() = default;
    // A new zero-filled block of `bytes`, or null.
    virtual Handle Alloc(uint32_t bytes) = 0;
    // The block resized to `bytes`, growth zero-filled, or null when it cannot
    // be had (the block is then left as it was).
    virtual Handle ReAlloc(Handle block, uint32_t bytes) = 0;
    // The block's bytes, or null.
    virtual void *Lock(Handle block) = 0;
    virtual void Unlock(Handle block) = 0;
    virtual void Free(Handle block) = 0;
};

// A block locked for as long as the object lives.
class Locked {
public:
    Locked(Blocks &memory, Blocks::Handle block)
        : memory_(memory), block_(block), bytes_(block ? memory.Lock(block) : nullptr) {}
    ~Locked() {
        if (bytes_)
            memory_.Unlock(block_);
    }
    Locked(const Locked &) = delete;
    Locked &operator=(const Locked &) = delete;

    explicit operator bool() const { return bytes_ != nullptr; }
    uint8_t *bytes() const { return static_cast<uint8_t *>(bytes_); }
    char16_t *text() const { return static_cast<char16_t *>(bytes_); }

private:
    Blocks &memory_;
    Blocks::Handle block_;
    void *bytes_;
};

// A block freed when the object goes.
class OwnedBlock {
public:
    OwnedBlock(Blocks &memory, Blocks::Handle block) : memory_(memory), block_(block) {}
    ~OwnedBlock() {
        if (block_)
            memory_.Free(block_);
    }
    OwnedBlock(const OwnedBlock &) = delete;
    OwnedBlock &operator=(const OwnedBlock &) = delete;

    Blocks::Handle get() const { return block_; }

private:
    Blocks &memory_;
    Blocks::Handle block_;
};

class System {
public:
    virtual ~System() = default;
    virtual Blocks &Memory() = 0;
    // Milliseconds since the system started, wrapping at 2^32.
    virtual uint32_t TickCount() = 0;
    // The host's present moment.
    virtual HostDateTime Now() = 0;
    // A moment as the host writes it by the picture "hh:mm:ss AMPM".
    virtual std::u16string ClockText(const HostDateTime &clock) = 0;
    // The application's name of the active window; empty when there is none.
    virtual std::u16string ActiveWindowName() = 0;
    // One piece of text to the debugger.
    virtual void Debug(const char16_t *text) = 0;
    // A message box with an exclamation icon, captioned by string `captionId`.
    virtual void Box(const char16_t *text, uint32_t captionId) = 0;
};

} // namespace zk::diag
