// The network exports on a machine without a network, as Wine is: the
// listing and the name query come back empty, the connection calls with
// the platform's error. The walk itself is tested against a fake network
// in native_os_net.
#include "netprofile_support.h"

#include <winnetwk.h>

using namespace netprofiletest;

namespace {

class Net : public FolderTest {};

TEST_F(Net, NoNetworkDriveListsNothingAndLeavesTheArrays) {
    const HostArray local = Array({L"A:"}), remote = Array({L"\\\\old\\share", L"x"});
    EXPECT_EQ(0, ZelDosEnumNetConnections(local, remote));
    EXPECT_EQ((Texts{L"A:"}), Elements(local));
    EXPECT_EQ((Texts{L"\\\\old\\share", L"x"}), Elements(remote));
}

TEST_F(Net, NameOfALocalOrUnknownDeviceIsEmpty) {
    wchar_t windows[MAX_PATH] = {};
    GetWindowsDirectoryW(windows, MAX_PATH);
    const std::wstring drive(windows, 2);
    for (const std::wstring &name : {drive + L"\\", drive, L"\\" + drive + L"\\\\", std::wstring(L"LPT1"),
                                     std::wstring(L""), std::wstring(L"\\\\")}) {
        SCOPED_TRACE(std::string(name.begin(), name.end()));
        EXPECT_EQ(L"", filestest::Take(ZelDosGetNetName(name.c_str())));
    }
    EXPECT_EQ(L"", filestest::Take(ZelDosGetNetName(nullptr)));
}

TEST_F(Net, ConnectionCallsGiveThePlatformsErrorNegated) {
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelDosNetConnect(L"Q:", nullptr, nullptr));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelDosNetDisconnect(nullptr, 1));

    const DWORD connect = WNetAddConnectionW(L"\\\\nohost\\share", nullptr, L"Q:");
    ASSERT_NE(DWORD(NO_ERROR), connect) << "this machine has a network";
    EXPECT_EQ(-static_cast<int32_t>(connect), ZelDosNetConnect(L"Q:", L"\\\\nohost\\share", nullptr));
    EXPECT_EQ(-static_cast<int32_t>(connect), ZelDosNetConnect(L"Q:", L"\\\\nohost\\share", L"secret"));

    const DWORD cancel = WNetCancelConnectionW(L"Q:", TRUE);
    ASSERT_NE(DWORD(NO_ERROR), cancel);
    EXPECT_EQ(-static_cast<int32_t>(cancel), ZelDosNetDisconnect(L"Q:", 1));
    EXPECT_EQ(-static_cast<int32_t>(WNetCancelConnectionW(L"Q:", FALSE)), ZelDosNetDisconnect(L"Q:", 0));
}

} // namespace
