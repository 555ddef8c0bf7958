// The network exports on a machine without a network, as Wine is: the
// listing and the name query come back empty, the connection calls with
// the platform's error (the walk itself is tested against a fake network
// in native_os). The keys of an INI section and the deletion of a key or a
// section, on real INI files.
#include "os_support.h"
#include "zkharness.h"

#include <winnetwk.h>

using namespace ostest;

namespace {

class Net : public OsTest {};

TEST_F(Net, NoNetworkDriveListsNothingAndLeavesTheArrays) {
    const HostArray local = Array({L"A:"}), remote = Array({L"\\\\old\\share", L"x"});
    EXPECT_EQ(0, ZelDosEnumNetConnections(local, remote));
    EXPECT_EQ((Texts{L"A:"}), TextsOf(local));
    EXPECT_EQ((Texts{L"\\\\old\\share", L"x"}), TextsOf(remote));
}

TEST_F(Net, NameOfALocalOrUnknownDeviceIsEmpty) {
    wchar_t windows[MAX_PATH] = {};
    GetWindowsDirectoryW(windows, MAX_PATH);
    const std::wstring drive(windows, 2);
    for (const std::wstring &name : {drive + L"\\", drive, L"\\" + drive + L"\\\\", std::wstring(L"LPT1"),
                                     std::wstring(L""), std::wstring(L"\\\\")}) {
        SCOPED_TRACE(std::string(name.begin(), name.end()));
        EXPECT_EQ(L"", Take(ZelDosGetNetName(name.c_str())));
    }
    EXPECT_EQ(L"", Take(ZelDosGetNetName(nullptr)));
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

class Profile : public OsTest {};

TEST_F(Profile, KeysOfASectionInOrder) {
    const std::wstring ini = Make(L"app.ini", "[first]\r\nalpha=1\r\nBeta = two\r\n\r\n; note\r\ngamma=\r\n"
                                              "[second]\r\nalpha=9\r\n");
    // The array had more elements than keys: its bounds become 0 to the last key.
    const HostArray keys = Array({L"x", L"y", L"z", L"w"});
    EXPECT_EQ(3, ZelProfileEnumStrings(ini.c_str(), L"first", keys));
    EXPECT_EQ((Texts{L"alpha", L"Beta", L"gamma"}), TextsOf(keys));
    // Section names are matched without case.
    EXPECT_EQ(1, ZelProfileEnumStrings(ini.c_str(), L"SECOND", keys));
    EXPECT_EQ((Texts{L"alpha"}), TextsOf(keys));
}

TEST_F(Profile, MoreThan256CharactersOfNames) {
    std::string text = "[big]\r\n";
    Texts expected;
    for (int i = 0; i < 60; ++i) { // 60 names of 24 characters and a NUL: 1500 characters
        char name[32];
        wsprintfA(name, "key_number_%03d_abcdefghi", i);
        text += std::string(name) + "=" + std::to_string(i) + "\r\n";
        expected.push_back(std::wstring(name, name + 24));
    }
    // Lists that end just below, at and just past the first block's size.
    const std::wstring ini = Make(L"big.ini", text + "[edge]\r\n" + std::string(250, 'e') + "=1\r\nf=2\r\ng=3\r\n");
    const HostArray keys = Array(HOST_TYPE_STRING);
    EXPECT_EQ(60, ZelProfileEnumStrings(ini.c_str(), L"big", keys));
    EXPECT_EQ(expected, TextsOf(keys));
    EXPECT_EQ(3, ZelProfileEnumStrings(ini.c_str(), L"edge", keys));
    EXPECT_EQ((Texts{std::wstring(250, L'e'), L"f", L"g"}), TextsOf(keys));
}

TEST_F(Profile, FileIsLookedUpOnTheSearchPath) {
    Make(L"here.ini", "[s]\r\nlocal=1\r\n");
    EnterFolder();
    const HostArray keys = Array(HOST_TYPE_STRING);
    // A bare name is the file in the current folder, not one in the Windows folder.
    EXPECT_EQ(1, ZelProfileEnumStrings(L"here.ini", L"s", keys));
    EXPECT_EQ((Texts{L"local"}), TextsOf(keys));
    EXPECT_NE(0, ZelProfileDelete(L"here.ini", L"s", L"local"));
    EXPECT_EQ(0, ZelProfileEnumStrings(L"here.ini", L"s", keys));
}

TEST_F(Profile, FailuresAndEmptySectionsLeaveTheArray) {
    const HostArray keys = Array({L"kept"});
    const std::wstring empty = Make(L"empty.ini", "[none]\r\n[some]\r\nk=v\r\n");
    EXPECT_EQ(0, ZelProfileEnumStrings(empty.c_str(), L"none", keys));
    EXPECT_EQ(0, ZelProfileEnumStrings(empty.c_str(), L"absent", keys));
    EXPECT_EQ(ZEL_FILE_NOT_FOUND, ZelProfileEnumStrings(At(L"none.ini").c_str(), L"s", keys));
    EXPECT_EQ(ZEL_FILE_NOT_FOUND, ZelProfileEnumStrings(nullptr, L"s", keys));
    EXPECT_EQ(ZEL_FILE_NOT_FOUND, ZelProfileDelete(At(L"none.ini").c_str(), L"s", L"k"));
    EXPECT_EQ(ZEL_FILE_NOT_FOUND, ZelProfileDelete(nullptr, L"s", L""));
    EXPECT_EQ("<missing>", Contents(L"none.ini")) << "nothing is created";
    EXPECT_EQ((Texts{L"kept"}), TextsOf(keys));
}

// Without a section the platform lists the file's sections, and writes nothing.
TEST_F(Profile, NullSectionListsTheSectionsAndDeletesNothing) {
    const std::wstring ini = Make(L"s.ini", "[none]\r\n[some]\r\nk=v\r\n");
    const HostArray keys = Array(HOST_TYPE_STRING);
    EXPECT_EQ(2, ZelProfileEnumStrings(ini.c_str(), nullptr, keys));
    EXPECT_EQ((Texts{L"none", L"some"}), TextsOf(keys));
    for (const wchar_t *key : {L"k", L"", static_cast<const wchar_t *>(nullptr)})
        EXPECT_EQ(0, ZelProfileDelete(ini.c_str(), nullptr, key));
    EXPECT_EQ("[none]\r\n[some]\r\nk=v\r\n", Contents(L"s.ini"));
}

TEST_F(Profile, DeleteAKeyOrTheWholeSection) {
    const std::wstring ini = Make(L"del.ini", "[a]\r\nk1=1\r\nk2=2\r\n[b]\r\nk1=3\r\n[c]\r\nk=4\r\n");
    const HostArray keys = Array(HOST_TYPE_STRING);
    EXPECT_NE(0, ZelProfileDelete(ini.c_str(), L"a", L"k1"));
    EXPECT_EQ(1, ZelProfileEnumStrings(ini.c_str(), L"a", keys));
    EXPECT_EQ((Texts{L"k2"}), TextsOf(keys));
    EXPECT_EQ(1, ZelProfileEnumStrings(ini.c_str(), L"b", keys)) << "the same key of another section stays";

    // An empty key, or none, takes the section with all its keys.
    EXPECT_NE(0, ZelProfileDelete(ini.c_str(), L"a", L""));
    EXPECT_NE(0, ZelProfileDelete(ini.c_str(), L"c", nullptr));
    wchar_t sections[256] = {};
    const DWORD length = GetPrivateProfileSectionNamesW(sections, 256, ini.c_str());
    EXPECT_EQ(std::wstring(L"b\0", 2), std::wstring(sections, length));
    EXPECT_EQ(std::string::npos, Contents(L"del.ini").find("[a]"));
    EXPECT_EQ(std::string::npos, Contents(L"del.ini").find("k2"));

    // A file another program holds without sharing cannot be written: the platform's 0.
    const std::wstring locked = Make(L"ro.ini", "[a]\r\nk=1\r\n");
    {
        const filestest::Held held(locked);
        ASSERT_TRUE(held.Holds());
        EXPECT_EQ(0, ZelProfileDelete(locked.c_str(), L"a", L"k"));
        EXPECT_EQ(0, ZelProfileDelete(locked.c_str(), L"a", L""));
    }
    EXPECT_EQ("[a]\r\nk=1\r\n", Contents(L"ro.ini"));
}

TEST_F(Profile, NameTheHostCannotMakeAsksOnceAndStandsAsNoString) {
    const std::wstring ini = Make(L"oom.ini", "[s]\r\none=1\r\ntwo=2\r\nthree=3\r\n");
    const HostArray keys = Array(HOST_TYPE_STRING);
    zkt::DialogAnswerer answerer(kRetry);
    // Only the first name's allocation fails: a retry after the answer would
    // have made it.
    ZkHostFailAllocations(1);
    EXPECT_EQ(3, ZelProfileEnumStrings(ini.c_str(), L"s", keys));
    ZkHostFailAllocations(0);
    EXPECT_EQ(1, answerer.answered());
    EXPECT_EQ((Texts{L"<null>", L"two", L"three"}), TextsOf(keys));
}

} // namespace
