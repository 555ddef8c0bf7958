// The walk of the value search (ZelListFindValue): rows after the start,
// once round the end of the list. Kept apart from the window so that the
// wrap rules are one small function.
#pragma once

#include <cstdint>

namespace zk::lbx {

// What the walk reads: the row's value, -1 past the end. A row may hold -1
// as its value too; `count` tells the two apart.
class ValueRows {
public:
    virtual ~ValueRows() = default;
    virtual int32_t Value(int32_t row) = 0;
};

// The first row after `start` whose value is `value`; -1 when none.
//
// From start + 1 the rows are read in turn. Reading -1 past the end sends
// the walk on from row 0 the first time and ends it the second. A row whose
// value is -1 sends it back to row 0 the same way without counting as the
// wrap, so -1 itself is never found. Coming back to the start (start -1 is
// the place before row 0) ends the walk. A walk that a -1 row would keep
// going round for ever ends after it has read every row twice.
int32_t FindValueWalk(ValueRows &rows, int32_t count, int32_t start, int32_t value);

} // namespace zk::lbx
