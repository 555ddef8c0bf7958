// HostHalt ends the application, unless a test has asked it to return.
#include "zkhost.h"
#include "zkhostctl.h"

namespace {

bool HaltReturns = false;
int32_t HaltCount = 0;

} // namespace

extern "C" {

void ZKAPI HostHalt(void) {
    ++HaltCount;
    if (!HaltReturns)
        ExitProcess(3);
}

void ZKAPI ZkHostHaltReturns(int32_t on) { HaltReturns = on != 0; }

int32_t ZKAPI ZkHostHaltCount(void) { return HaltCount; }

} // extern "C"
