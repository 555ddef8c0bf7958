// Expanding a text template over the elements of a host array (the syntax
// is described in expand_syntax.h).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "text/core/expand_syntax.h"

namespace zk::text {

// The array's elements as the expansion reads them.
class ElementSource {
public:
    virtual ~ElementSource() = default;
    // The element at host index `index` as text; empty when the host has
    // none there. Valid until the next call.
    virtual std::u16string_view String(int32_t index) = 0;
    // The element at `index` as a number converted to a long; 0 when the
    // host has none there.
    virtual int32_t Number(int32_t index) = 0;
};

// The buffer size in characters, terminator included, that the template
// is expected to need. An upper bound for well-formed templates whose plain
// %n and %s codes are covered by the first code's share.
uint64_t EstimateExpandSize(std::u16string_view templateText, const ArrayShape &shape, ElementSource &elements);

// The expanded text, however the template is formed.
std::u16string Expand(std::u16string_view templateText, const ArrayShape &shape, ElementSource &elements);

} // namespace zk::text
