// A platform for the diagnostics that the tests drive: memory that refuses
// on demand and checks every access, a tick count and clock set by hand,
// and the debugger and message boxes recorded.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "diag/core/system.h"

namespace diagtest {

// Blocks of exactly the size asked for, so that ASan sees any write past
// one. A resized block always moves to a new handle.
class FakeBlocks final : public zk::diag::Blocks {
public:
    ~FakeBlocks() override {
        for (auto &[id, block] : blocks_)
            EXPECT_EQ(block.locks, 0) << "block " << id << " still locked";
    }

    Handle Alloc(uint32_t bytes) override {
        allocs.push_back(bytes);
        if (Refuse())
            return nullptr;
        return Make(bytes);
    }
    Handle ReAlloc(Handle handle, uint32_t bytes) override {
        reallocs.push_back(bytes);
        Block *old = Find(handle);
        if (!old || Refuse())
            return nullptr;
        EXPECT_EQ(old->locks, 0) << "a locked block cannot move";
        Handle moved = Make(bytes);
        Block &now = blocks_[Id(moved)];
        std::copy(old->bytes.get(), old->bytes.get() + std::min(old->size, bytes), now.bytes.get());
        blocks_.erase(Id(handle));
        return moved;
    }
    void *Lock(Handle handle) override {
        Block *block = Find(handle);
        if (!block || refuseLocks)
            return nullptr;
        ++block->locks;
        return block->bytes.get();
    }
    void Unlock(Handle handle) override {
        Block *block = Find(handle);
        if (block) {
            EXPECT_GT(block->locks, 0) << "unlocked more than locked";
            --block->locks;
        }
    }
    void Free(Handle handle) override {
        Block *block = Find(handle);
        if (block) {
            EXPECT_EQ(block->locks, 0) << "freed while locked";
            blocks_.erase(Id(handle));
        }
    }

    size_t Live() const { return blocks_.size(); }

    // The next `count` allocations and resizes are refused (after `skip` more succeed).
    void FailNext(int count, int skip = 0) {
        failures_ = count;
        skip_ = skip;
    }
    std::vector<uint32_t> allocs;
    std::vector<uint32_t> reallocs;
    bool refuseLocks = false;

private:
    struct Block {
        std::unique_ptr<uint8_t[]> bytes;
        uint32_t size = 0;
        int locks = 0;
    };

    static uintptr_t Id(Handle handle) { return reinterpret_cast<uintptr_t>(handle); }
    bool Refuse() {
        if (skip_ > 0) {
            --skip_;
            return false;
        }
        if (failures_ > 0) {
            --failures_;
            return true;
        }
        return false;
    }
    Handle Make(uint32_t bytes) {
        const uintptr_t id = next_++;
        Block &block = blocks_[id];
        block.bytes = std::make_unique<uint8_t[]>(bytes ? bytes : 1); // zero-filled
        block.size = bytes;
        return reinterpret_cast<Handle>(id);
    }
    Block *Find(Handle handle) {
        auto it = blocks_.find(Id(handle));
        if (it == blocks_.end()) {
            ADD_FAILURE() << "unknown block " << Id(handle);
            return nullptr;
        }
        return &it->second;
    }

    std::map<uintptr_t, Block> blocks_;
    uintptr_t next_ = 0x1000;
    int failures_ = 0;
    int skip_ = 0;
};

struct ShownBox {
    std::u16string text;
    uint32_t caption;
};

// The clock is a second of the day kept in the first digit byte; the host
// writes it as "10:MM:SS AM".
class FakeSystem final : public zk::diag::System {
public:
    zk::diag::Blocks &Memory() override { return memory; }
    uint32_t TickCount() override { return ticks; }
    HostDateTime Now() override {
        HostDateTime now{};
        now.length = 1;
        now.digits[0] = static_cast<uint8_t>(second);
        return now;
    }
    std::u16string ClockText(const HostDateTime &clock) override {
        ++clockTexts;
        const int s = clock.digits[0];
        std::u16string text = u"10:00:00 AM";
        text[3] = static_cast<char16_t>(u'0' + s / 600 % 6);
        text[4] = static_cast<char16_t>(u'0' + s / 60 % 10);
        text[6] = static_cast<char16_t>(u'0' + s % 60 / 10);
        text[7] = static_cast<char16_t>(u'0' + s % 10);
        return text;
    }
    std::u16string ActiveWindowName() override { return windowName; }
    void Debug(const char16_t *text) override { debug.emplace_back(text); }
    void Box(const char16_t *text, uint32_t caption) override { boxes.push_back({text, caption}); }

    // Everything the debugger received, as one text.
    std::u16string DebugText() const {
        std::u16string all;
        for (const auto &piece : debug)
            all += piece;
        return all;
    }
    // Moves the clocks on: milliseconds of ticks, seconds of the host's clock.
    void Advance(uint32_t milliseconds, int seconds = 0) {
        ticks += milliseconds;
        second += seconds;
    }

    FakeBlocks memory;
    uint32_t ticks = 50000;
    int second = 0;
    int clockTexts = 0;
    std::u16string windowName = u"frmMain";
    std::vector<std::u16string> debug;
    std::vector<ShownBox> boxes;
};

} // namespace diagtest
