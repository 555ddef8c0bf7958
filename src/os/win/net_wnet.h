// The network walk's platform on Win32: drive types as ZelDosGetDriveType
// gives them, connections from the WNet functions, and the listing into two
// host string arrays with strings made without the retry dialog.
#pragma once

#include "frame/win/host.h"
#include "os/core/net_connections.h"

namespace zk::os {

class WNetPlatform final : public NetPlatform {
public:
    int32_t DriveType(char16_t letter) override;
    uint32_t Connection(const char16_t *local, char16_t *buffer, uint32_t *chars) override;
};

class HostArrayListing final : public NetListing {
public:
    HostArrayListing(HostArray localNames, HostArray remoteNames) : local_(localNames), remote_(remoteNames) {}
    bool Add(int32_t index, std::u16string_view local, std::u16string_view remote) override;
    void Finish(int32_t last) override;

private:
    HostArray local_;
    HostArray remote_;
};

} // namespace zk::os
