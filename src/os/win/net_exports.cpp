// ZelDosEnumNetConnections, ZelDosGetNetName, ZelDosNetConnect and
// ZelDosNetDisconnect: network drives and printer ports through WNet.
#include "frame/win/guard.h"
#include "os/win/net_wnet.h"

#include <winnetwk.h>

using namespace zk::os;

int32_t ZKAPI ZelDosEnumNetConnections(HostArray localNames, HostArray remoteNames) {
    return zk::Quietly(
        [&] {
            WNetPlatform platform;
            HostArrayListing listing(localNames, remoteNames);
            return EnumNetConnections(platform, listing);
        },
        [] { return kNetNoMemory; });
}

HostStr ZKAPI ZelDosGetNetName(const wchar_t *localName) {
    return zk::StringResult([&] {
        if (!localName)
            return ZelStrEmpty();
        WNetPlatform platform;
        const auto remote = NetName(platform, reinterpret_cast<const char16_t *>(localName));
        if (!remote)
            return ZelStrEmpty();
        // No retry here: a host without memory gets the empty string.
        const HostStr name = ZelStrFromText(reinterpret_cast<const wchar_t *>(remote->c_str()));
        return name ? name : ZelStrEmpty();
    });
}

int32_t ZKAPI ZelDosNetConnect(const wchar_t *localName, const wchar_t *remoteName, const wchar_t *password) {
    if (!remoteName)
        return ZEL_INVALID_PARAMETER;
    return -static_cast<int32_t>(WNetAddConnectionW(remoteName, password, localName));
}

int32_t ZKAPI ZelDosNetDisconnect(const wchar_t *localName, int32_t force) {
    if (!localName)
        return ZEL_INVALID_PARAMETER;
    return -static_cast<int32_t>(WNetCancelConnectionW(localName, force));
}
