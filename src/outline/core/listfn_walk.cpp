#include "outline/core/listfn_walk.h"

#include <algorithm>

namespace zk::lbx {

int32_t FindValueWalk(ValueRows &rows, int32_t count, int32_t start, int32_t value) {
    count = std::max(count, 0);
    // Every row once before and once after the wrap, plus the two ends: a
    // walk that is still going after that only goes round a -1 row again.
    int64_t budget = 2 * static_cast<int64_t>(count) + 4;
    bool wrapped = false;
    int64_t row = start;
    while (budget-- > 0) {
        ++row;
        if (row == start) {
            return -1;
        }
        const bool inside = row >= 0 && row < count;
        const int32_t read = inside ? rows.Value(static_cast<int32_t>(row)) : -1;
        if (read == -1) {
            if (!inside) {
                if (wrapped) {
                    return -1;
                }
                wrapped = true;
            }
            row = -1; // the next row read is row 0
            if (row == start) {
                return -1;
            }
            continue;
        }
        if (read == value) {
            return static_cast<int32_t>(row);
        }
    }
    return -1;
}

} // namespace zk::lbx
