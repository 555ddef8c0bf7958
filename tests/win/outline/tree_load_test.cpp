// Loading nodes without rows: children, siblings, arrays, shell folder names.
#include "tree_fixture.h"

#include "zkhostctl.h"

namespace {

using namespace treetest;

TEST_F(OutlineFixture, LoadMakesNoRowsKeepsFirstBitsOnAnOnlyChildAndHidesNewSiblings) {
    const H top = Load(root, L"top");
    const H kid = Load(top, L"kid", 0x0000BEEF, 7);
    EXPECT_EQ(Send(list, LB_GETCOUNT), 0);
    EXPECT_EQ(Flags(top) & kConn, 0x00080000u);             // level 0: no left line
    EXPECT_EQ(Flags(kid) & (kConn | 0xFFFFu), 0x0009BEEFu); // first bits, though the only one
    EXPECT_EQ(Flags(top) & (LBX_ItemHasChildren | LBX_ItemPlus | LBX_ItemMinus), LBX_ItemHasChildren | LBX_ItemPlus);
    const H second = Load(top, L"second");
    EXPECT_EQ(Flags(second) & kConn, 0x00070000u);
    EXPECT_EQ(Flags(kid) & kConn, 0x00090000u);
    // A sibling comes right after its sibling, hidden, with the left line
    // of its pattern even at the top level.
    const H last = Load(root, L"last");
    const H mid = ZelListLoadSibling(list, top, 0, 0, L"mid", 3, 0x10);
    EXPECT_EQ(ZelListGetNextSibling(top), mid);
    EXPECT_EQ(ZelListGetPrevSibling(last), mid);
    EXPECT_EQ(Flags(mid), LBX_ItemHidden | 0x000F0000u | 0x10u);
    const H end = ZelListLoadSibling(list, last, 0, 0, L"end", 0, 0);
    EXPECT_EQ(Flags(end) & kConn, 0x00070000u);
    EXPECT_TRUE(Flags(last) & LBX_ItemHasNext);
    tolerance.connectorsFree = {N(mid), N(end)};
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowAllButHidden), 1);
    EXPECT_EQ(Rows(), L"top .kid .second last");
    Check();
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    EXPECT_EQ(Rows(), L"top .kid .second mid last end");
    Check();
    EXPECT_EQ(ZelListLoadSibling(list, root, 0, 0, L"x", 0, 0), 0); // the root has no siblings
}

TEST_F(OutlineFixture, LoadFailsOnBadParentsPicturesAndUnadoptedWindows) {
    EXPECT_EQ(ZelListLoadChild(list, 0, 0, 0, L"x", 0, 0), 0);
    EXPECT_EQ(ZelListLoadChild(list, 0x12345670, 0, 0, L"x", 0, 0), 0);
    const H gone = Load(root, L"gone");
    ASSERT_EQ(ZelListFreeChild(gone), 1);
    EXPECT_EQ(ZelListLoadChild(list, gone, 0, 0, L"x", 0, 0), 0);
    zkt::TestWindow other;
    EXPECT_EQ(ZelListLoadChild(other.AddListBox(1, {0, 0, 50, 50}), root, 0, 0, L"x", 0, 0), 0);
    EXPECT_EQ(ZelListLoadChild(list, root, 0x777, 0, L"x", 0, 0), 0);
}

TEST_F(OutlineFixture, LoadChildrenFromArraysAndOpensTheParent) {
    const H top = Load(root, L"top");
    const HostArray texts = HostArrayCreate(HOST_TYPE_STRING);
    const HostArray values = HostArrayCreate(HOST_TYPE_NUMBER);
    const HostArray flags = HostArrayCreate(HOST_TYPE_NUMBER);
    const wchar_t *names[] = {L"one", L"two", L"three"};
    HostNumber n{};
    for (int i = 0; i < 3; ++i) {
        HostArraySetString(texts, ZkHostStrMake(names[i]), i);
        HostArraySetNumber(values, HostNumberFromLong(10 + i, &n), i);
        HostArraySetNumber(flags, HostNumberFromULong(i == 1 ? 0x80000001u : 0u, &n), i);
    }
    EXPECT_EQ(ZelListLoadChildren(list, top, 0, 0, texts, values, flags), 3);
    EXPECT_TRUE(Flags(top) & LBX_ItemExpanded);
    const H two = ZelListGetNextSibling(ZelListFindItemValue(top, 10));
    EXPECT_EQ(TextOf(two), L"two");
    EXPECT_EQ(Flags(two) & 0x80000001u, 0x80000001u);
    ZelListShowOutline(list, LBX_ShowAllButHidden);
    EXPECT_EQ(Rows(), L"top .one .two .three");
    HostArraySetBounds(flags, 0, 1);
    EXPECT_EQ(ZelListLoadChildren(list, top, 0, 0, texts, values, flags), ZEL_INVALID_PARAMETER);
    HostArraySetBounds(flags, 0, 2);
    EXPECT_EQ(ZelListLoadChildren(list, 0x4444, 0, 0, texts, values, flags), ZEL_NOT_ENOUGH_MEMORY);
    // Three empty arrays agree: nothing is loaded and the count is 0.
    for (HostArray a : {texts, values, flags})
        HostArraySetBounds(a, 0, -1);
    EXPECT_EQ(ZelListLoadChildren(list, top, 0, 0, texts, values, flags), 0);
    EXPECT_EQ(Rows(), L"top .one .two .three");
    for (HostArray a : {texts, values, flags})
        HostArrayDestroy(a);
}

TEST_F(OutlineFixture, StockOrEmptyTextsOfShellFolderValuesTakeTheRegistryName) {
    const wchar_t *key = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\CLSID\\"
                         L"{20D04FE0-3AEA-1069-A2D8-08002B30309D}";
    HKEY k = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, key, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &k, nullptr), 0);
    const wchar_t name[] = L"This Machine";
    RegSetValueExW(k, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE *>(name), sizeof(name));
    RegCloseKey(k);
    EXPECT_EQ(TextOf(Load(root, L"My Computer", 0, -2)), L"This Machine");
    EXPECT_EQ(TextOf(Load(root, L"", 0, -2)), L"This Machine");
    EXPECT_EQ(TextOf(Load(root, nullptr, 0, -2)), L"This Machine");
    EXPECT_EQ(TextOf(Load(root, L"My Computer", 0, 5)), L"My Computer");
    EXPECT_EQ(TextOf(Load(root, L"Drive", 0, -2)), L"Drive");
    EXPECT_FALSE(TextOf(Load(root, L"Network Neighborhood", 0, -3)).empty());
    RegDeleteKeyW(HKEY_CURRENT_USER, key);
}

} // namespace
