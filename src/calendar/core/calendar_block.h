// SPropCalendar: the calendar's property block, the generic six styles
// followed by the calendar's own flags and its initial date.
#pragma once

#include <cstdint>
#include <string>

#include "frame/core/generic_block.h"

namespace zk {

// Written as 2. Version 1 lacks alternateButtons; version 0 has none of
// the calendar's fields.
inline constexpr uint32_t kCalendarBlockVersion = 2;

class SPropCalendar : public SPropGeneric {
    ZK_DECLARE_SERIAL(SPropCalendar)

public:
    int32_t alternateButtons = 0;
    int32_t etchedLook = 0;
    int32_t selectExtra = 1;
    int32_t selectSpecial = 1;
    int32_t showExtra = 1;
    int32_t showGridlines = 0;
    int32_t showSpecial = 0;
    int32_t initialDateMode = 0; // 0 the current date, 1 the date in initialDate
    std::u16string initialDate;

    void Serialize(CArchive &ar) override;
};

} // namespace zk
