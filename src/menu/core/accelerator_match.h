// Which accelerator a key calls, and what the keyboard hook then does. The
// records themselves live in moveable local blocks on the platform side;
// this index keeps, per key, the records of that key in the order they were
// loaded with their modifiers, so that a key finds its first match without
// walking the whole list.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "zklib/window.h"

namespace zk::menu {

// The modifier keys held down as a key comes.
struct KeyState {
    bool shift = false, control = false, alt = false;
};

// Whether an accelerator's modifier value names exactly the keys held.
// Values above 7 never match.
bool ModifiersMatch(uint32_t modifiers, KeyState held);

// One record, as the index knows it: its handle and its modifiers.
struct AccelEntry {
    std::uintptr_t handle = 0;
    uint32_t modifiers = 0;
};

class AccelIndex {
public:
    // After the records loaded before. Can throw std::bad_alloc.
    void Add(uint16_t key, AccelEntry entry);
    // Takes a record out; an unknown one is ignored.
    void Remove(uint16_t key, std::uintptr_t handle) noexcept;
    bool HasKey(uint16_t key) const noexcept { return byKey_.count(key) != 0; }
    // The first record loaded for the key whose modifiers match, or null.
    // Only the first such record counts, even when its window is not in
    // the foreground and a later one's is.
    const AccelEntry *FirstMatch(uint16_t key, KeyState held) const noexcept;

private:
    std::unordered_map<uint16_t, std::vector<AccelEntry>> byKey_;
};

// What the hook does with a key that found its record.
enum class KeyAction {
    Pass,    // the target is not in the foreground: on to the next hook
    Swallow, // the key going down: eaten, nothing sent
    Send,    // the key going up: eaten, the message sent
    Skip,    // going up while a send of the record is under way: eaten, not sent again
};

// `keyUp`: the key data is negative (the transition bit is set). `sending`:
// the record's sending word.
KeyAction DecideKey(bool targetInForeground, bool keyUp, bool sending);

} // namespace zk::menu
