#include "designer_test.h"

namespace designertest {

ZK_IMPLEMENT_SERIAL(SColorItem)
ZK_IMPLEMENT_SERIAL(SMenuItem)

} // namespace designertest
