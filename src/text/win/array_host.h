// Host arrays as the array exports see them: the one-dimension test, the
// bounds, and the move of one element by the caller's type code.
#pragma once

#include <cstdint>

#include "frame/win/host.h"

namespace zk::text {

struct ArrayBounds {
    int32_t low = 0;
    int32_t high = -1;
    int32_t count = 0; // what the host counts, high - low + 1 for a sound array
};

// Whether the handle is an array of one dimension. The host reports no
// dimension at all for a handle it does not know, and that is no array.
bool IsSingleDimension(HostArray array);

ArrayBounds ReadBounds(HostArray array);

// Whether the code is one of the string types: 5 or 7.
bool IsStringType(int32_t type);

// When the extra reference of a moved string is taken: appending and
// copying take it after the write, shifting inside one array before it.
enum class RefTiming { AfterWrite, BeforeWrite };

// Moves one element from one slot to another by the type's read and write
// operations; false, with nothing moved, for a code that is no element type.
// A moved string ends up in both slots, each with a reference.
bool MoveElement(int32_t type, HostArray from, int32_t fromIndex, HostArray to, int32_t toIndex, RefTiming timing);

// Writes the empty value of the type to a slot: 0, a null record, no string.
void ClearElement(int32_t type, HostArray array, int32_t index);

} // namespace zk::text
