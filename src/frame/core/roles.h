// Colour roles: each control numbers its colours, and a role follows the
// system until an explicit colour is set. A control's table gives, per
// role, the system colour index it follows, or kFollows (0xFFFF) for a role
// that follows another role, which the control's rule names.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace zk {

inline constexpr uint16_t kFollows = 0xFFFF;

template <size_t N>
class RoleColors {
public:
    // The system colour of an index, and for a following role the role it
    // follows (any other role as the rule gives it).
    using SysColor = uint32_t (*)(int32_t index);

    explicit constexpr RoleColors(const std::array<uint16_t, N> &table) : table_(table) {}

    static constexpr int32_t Count() { return static_cast<int32_t>(N); }
    static constexpr bool Valid(int32_t role) { return role >= 0 && role < static_cast<int32_t>(N); }
    uint16_t TableEntry(int32_t role) const { return Valid(role) ? table_[static_cast<size_t>(role)] : kFollows; }

    // The colour in force: the explicit one once set, else the system
    // colour of the table entry, else follow(role) for a following role.
    // The role must be valid.
    template <class Follow>
    uint32_t Get(int32_t role, SysColor sysColor, Follow &&follow) const {
        const size_t r = static_cast<size_t>(role);
        if (useDefault_[r] != 1)
            return colors_[r];
        if (table_[r] != kFollows)
            return sysColor(table_[r]);
        return follow(role);
    }
    // Stores an explicit colour and ends the default. The caller gives back
    // the colour that was in force, as Get gave it just before.
    void Set(int32_t role, uint32_t color) {
        colors_[static_cast<size_t>(role)] = color;
        useDefault_[static_cast<size_t>(role)] = 0;
    }
    // 0 once set, else whether the role follows another.
    int IsDerived(int32_t role) const {
        const size_t r = static_cast<size_t>(role);
        return useDefault_[r] == 0 ? 0 : (table_[r] == kFollows ? 1 : 0);
    }
    bool UsesDefault(int32_t role) const { return useDefault_[static_cast<size_t>(role)] == 1; }

private:
    std::array<uint16_t, N> table_;
    std::array<uint32_t, N> colors_{};
    std::array<int32_t, N> useDefault_ = Ones();

    static constexpr std::array<int32_t, N> Ones() {
        std::array<int32_t, N> ones{};
        ones.fill(1);
        return ones;
    }
};

} // namespace zk
