#include "calendar/core/calendar_block.h"

namespace zk {

ZK_IMPLEMENT_SERIAL(SPropCalendar)

void SPropCalendar::Serialize(CArchive &ar) {
    SPropGeneric::Serialize(ar);
    int32_t *const flags[] = {&etchedLook, &selectExtra, &selectSpecial, &showExtra, &showGridlines, &showSpecial};
    if (ar.IsStoring()) {
        ar.WriteU32(kCalendarBlockVersion);
        for (int32_t *flag : flags)
            ar.WriteFlag(*flag);
        ar.WriteU32(static_cast<uint32_t>(initialDateMode));
        ar.WriteString(initialDate);
        ar.WriteFlag(alternateButtons);
        return;
    }
    const uint32_t version = ar.ReadU32();
    if (version == 0)
        return;
    for (int32_t *flag : flags)
        *flag = ar.ReadFlag();
    initialDateMode = ar.ReadI32();
    initialDate = ar.ReadString();
    if (version == 1)
        return;
    alternateButtons = ar.ReadFlag();
}

} // namespace zk
