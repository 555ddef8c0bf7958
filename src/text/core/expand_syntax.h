// The pieces of an expansion template: "%" codes and brace groups.
//
//   %%        one %, whether or not elements are left
//   %n %s %u  outside braces: the next element as a number, as a string,
//             or the running element position; once the elements are used
//             up, or before any other character, a % is plain text
//   {prefix%xsuffix} or {prefix%,xsuffix}
//             prefix, value, suffix for every element; with the comma a ","
//             between repeats. The first % followed (a comma skipped) by one
//             of n, s, u is the group's code; earlier % stay in the prefix.
//             A group without a code is copied as it stands.
//   {         with no } after it: a plain character; the scan goes on after
//             it, so the codes behind it still count.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace zk::text {

inline constexpr bool IsElementCode(char16_t c) { return c == u'n' || c == u's' || c == u'u'; }

struct GroupCode {
    std::size_t percent; // position of the %
    std::size_t end;     // position after the code letter
    bool comma;
    char16_t letter; // n, s or u
};

struct Group {
    std::size_t open;  // position of the {
    std::size_t close; // position of the }
    std::optional<GroupCode> code;

    std::size_t length() const { return close - open + 1; }
};

// Finds groups by their closing brace without scanning the tail of the
// template again for every unmatched {.
class GroupFinder {
public:
    explicit GroupFinder(std::u16string_view templateText);
    // The group that the { at `open` starts, or nothing when no } follows it.
    std::optional<Group> At(std::size_t open) const;

private:
    std::u16string_view text_;
    std::size_t lastClose_; // position of the last }, or npos
};

// The host indices of an array's elements, low to high; at most `count`.
struct ArrayShape {
    int32_t count = 0;
    int32_t low = 0;
    int32_t high = -1;

    std::size_t size() const { return count > 0 ? static_cast<std::size_t>(count) : 0; }
    // The last index to visit, bounded by the count so that bounds that
    // disagree with it cannot make a long walk.
    int64_t last() const;
};

} // namespace zk::text
