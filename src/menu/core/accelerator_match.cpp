#include "menu/core/accelerator_match.h"

#include <algorithm>

namespace zk::menu {

bool ModifiersMatch(uint32_t modifiers, KeyState held) {
    const uint32_t value =
        (held.shift ? ACCEL_Shift : 0) | (held.control ? ACCEL_Control : 0) | (held.alt ? ACCEL_Alt : 0);
    return modifiers == value;
}

void AccelIndex::Add(uint16_t key, AccelEntry entry) { byKey_[key].push_back(entry); }

void AccelIndex::Remove(uint16_t key, std::uintptr_t handle) noexcept {
    const auto found = byKey_.find(key);
    if (found == byKey_.end())
        return;
    std::vector<AccelEntry> &entries = found->second;
    const auto at =
        std::find_if(entries.begin(), entries.end(), [&](const AccelEntry &e) { return e.handle == handle; });
    if (at != entries.end())
        entries.erase(at);
    if (entries.empty())
        byKey_.erase(found);
}

const AccelEntry *AccelIndex::FirstMatch(uint16_t key, KeyState held) const noexcept {
    const auto found = byKey_.find(key);
    if (found == byKey_.end())
        return nullptr;
    for (const AccelEntry &entry : found->second)
        if (ModifiersMatch(entry.modifiers, held))
            return &entry;
    return nullptr;
}

KeyAction DecideKey(bool targetInForeground, bool keyUp, bool sending) {
    if (!targetInForeground)
        return KeyAction::Pass;
    if (!keyUp)
        return KeyAction::Swallow;
    return sending ? KeyAction::Skip : KeyAction::Send;
}

} // namespace zk::menu
