// ZelStrExpand: a template expanded over a host array into one host string.
#include <algorithm>

#include "text/core/expand.h"
#include "text/win/host_array_elements.h"
#include "text/win/host_text.h"

HostStr ZKAPI ZelStrExpand(const wchar_t *templateText, HostArray array) {
    return zk::StringResult([&]() -> HostStr {
        if (!templateText)
            return ZelStrEmpty();
        zk::text::ArrayShape shape;
        shape.count = HostArrayGetBounds(array, &shape.low, &shape.high);
        zk::text::HostArrayElements elements(array);
        const std::u16string_view text = zk::text::ArgText(templateText);
        const uint64_t estimate = zk::text::EstimateExpandSize(text, shape, elements);
        const std::u16string expanded = zk::text::Expand(text, shape, elements);

        // The estimate is the buffer, unless the text outgrows it (a template
        // it does not cover): then the text decides, so nothing is overrun.
        const uint64_t needed = expanded.size() + 1;
        uint64_t chars = std::max(estimate, needed);
        if (!zk::text::HostSizeFits(2 * chars))
            chars = needed;
        if (!zk::text::HostSizeFits(2 * chars))
            return ZelStrEmpty();
        HostStr slot = 0;
        zk::StrAllocRetry(&slot, static_cast<int32_t>(2 * chars));
        zk::StrWrite(slot, zk::text::WideText(expanded), expanded.size());
        HostStrSetLength(&slot, static_cast<int32_t>(needed));
        return slot;
    });
}
