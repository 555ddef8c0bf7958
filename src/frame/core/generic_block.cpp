#include "frame/core/generic_block.h"

namespace zk {

ZK_IMPLEMENT_SERIAL(SPropGeneric)

void SPropGeneric::Serialize(CArchive &ar) {
    int32_t *const styles[] = {&style1, &style2, &style3, &style4, &style5, &style6};
    if (ar.IsStoring()) {
        ar.WriteU32(kGenericBlockVersion);
        for (int32_t *style : styles)
            ar.WriteFlag(*style);
        return;
    }
    if (ar.ReadU32() == 0)
        return;
    for (int32_t *style : styles)
        *style = ar.ReadFlag();
}

} // namespace zk
