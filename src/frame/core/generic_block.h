// SPropGeneric: the base block of the calendar family, six style values.
// The frame applies them to its six flags with the second and third swapped
// (see CGenericControl::ApplyGenericBlock).
#pragma once

#include <cstdint>

#include "frame/core/archive.h"

namespace zk {

// Record versions: a reader that finds 0 reads nothing more of that record.
inline constexpr uint32_t kGenericBlockVersion = 1;

class SPropGeneric : public CObject {
    ZK_DECLARE_SERIAL(SPropGeneric)

public:
    int32_t style1 = 0;
    int32_t style2 = 1;
    int32_t style3 = 0;
    int32_t style4 = 1;
    int32_t style5 = 0;
    int32_t style6 = 1;

    // u32 version 1, then the six styles as one byte each. Fields are
    // assigned as they are read, so a short record keeps the defaults of
    // what it lacks.
    void Serialize(CArchive &ar) override;
};

} // namespace zk
