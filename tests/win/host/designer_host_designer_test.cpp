// The reference host's designer outline through its exports: the tree,
// windows bound to items, attributes, named properties, item calls, and
// OrlParentWindowOnly. Strings handed out are the host's: reading them
// again and again makes no new ones, and they go with their values.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "host_test_util.h"
#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"

namespace {

using hosttest::Text;

class HostDesigner : public testing::Test {
protected:
    void SetUp() override {
        strings = ZkHostLiveStrings();
        items = ZkHostDesignLiveItems();
        outline = ZkHostDesignNewOutline();
        form = ZkHostDesignAddItem(outline, 0, 1);
        ASSERT_NE(form, 0u);
    }
    void TearDown() override {
        EXPECT_EQ(ZkHostDesignFreeOutline(outline), 1);
        EXPECT_EQ(ZkHostDesignLiveItems(), items);
        EXPECT_EQ(ZkHostLiveStrings(), strings) << "strings of the outline's values stay behind";
    }

    int32_t strings = 0, items = 0;
    HostOutline outline = 0;
    HostItem form = 0;
};

TEST_F(HostDesigner, ItemsFormATree) {
    const HostItem a = ZkHostDesignAddItem(outline, form, 22);
    const HostItem b = ZkHostDesignAddItem(outline, form, 8);
    const HostItem c = ZkHostDesignAddItem(outline, b, 22);
    EXPECT_EQ(HostDesignFirstChild(outline, 0), form);
    EXPECT_EQ(HostDesignNextSibling(outline, form), 0u);
    EXPECT_EQ(HostDesignFirstChild(outline, form), a);
    EXPECT_EQ(HostDesignNextSibling(outline, a), b);
    EXPECT_EQ(HostDesignNextSibling(outline, b), 0u);
    EXPECT_EQ(HostDesignFirstChild(outline, b), c);
    EXPECT_EQ(HostDesignGetParentItem(outline, c), b);
    EXPECT_EQ(HostDesignGetParentItem(outline, form), 0u);
    EXPECT_EQ(HostDesignGetItemType(outline, form), 1);
    EXPECT_EQ(HostDesignGetItemType(outline, a), 22);
    EXPECT_EQ(HostDesignGetItemType(outline, b), 8);
}

TEST_F(HostDesigner, UnknownOutlinesAndItemsGiveZero) {
    const HostOutline other = ZkHostDesignNewOutline();
    EXPECT_EQ(HostDesignGetItemType(other, form), 0) << "an item of another outline";
    EXPECT_EQ(HostDesignGetParentItem(outline, 0xBAD), 0u);
    EXPECT_EQ(HostDesignFirstChild(0xBAD, 0), 0u);
    EXPECT_EQ(HostDesignNextSibling(outline, 0), 0u);
    EXPECT_EQ(HostDesignItemUpdate(outline, 0xBAD, 1, 0, 0), 0);
    EXPECT_EQ(HostDesignNotifyItem(other, form, 1, 0, 0), 0);
    EXPECT_EQ(ZkHostDesignAddItem(other, form, 1), 0u);
    EXPECT_EQ(ZkHostDesignFreeOutline(other), 1);
    EXPECT_EQ(ZkHostDesignFreeOutline(other), 0) << "once";
}

TEST_F(HostDesigner, WindowsAreBoundToItems) {
    zkt::TestWindow window;
    const HostItem control = ZkHostDesignAddItem(outline, form, 22);
    EXPECT_EQ(HostDesignGetOutline(window), 0u);
    EXPECT_EQ(HostDesignGetItem(window), 0u);
    ASSERT_EQ(ZkHostDesignBindWindow(outline, control, window), 1);
    EXPECT_EQ(HostDesignGetOutline(window), outline);
    EXPECT_EQ(HostDesignGetItem(window), control);
    EXPECT_EQ(HostDesignGetItemWindow(outline, control), window.hwnd());
    ASSERT_EQ(ZkHostDesignBindWindow(outline, form, window), 1) << "a window moves to another item";
    EXPECT_EQ(HostDesignGetItem(window), form);
    EXPECT_EQ(HostDesignGetItemWindow(outline, control), nullptr);
    ASSERT_EQ(ZkHostDesignBindWindow(outline, form, nullptr), 1);
    EXPECT_EQ(HostDesignGetItem(window), 0u);
    EXPECT_EQ(HostDesignGetOutline(nullptr), 0u);

    const HostOutline other = ZkHostDesignNewOutline();
    const HostItem item = ZkHostDesignAddItem(other, 0, 1);
    ZkHostDesignBindWindow(other, item, window);
    ZkHostDesignFreeOutline(other);
    EXPECT_EQ(HostDesignGetOutline(window), 0u) << "a gone outline leaves no window bound";
}

TEST_F(HostDesigner, AttributesByNumberAndIndex) {
    ASSERT_EQ(HostDesignSetAttribute(outline, form, 286, L"ZK:cCalendar:10", 0), 1);
    ASSERT_EQ(HostDesignSetAttribute(outline, form, 235, L"0.075\"", 1), 1);
    HostStr value = 0;
    ASSERT_EQ(HostDesignGetAttribute(outline, form, 286, 0, &value), 1);
    EXPECT_EQ(Text(value), L"ZK:cCalendar:10");
    ASSERT_EQ(HostDesignGetAttribute(outline, form, 235, 1, &value), 1);
    EXPECT_EQ(Text(value), L"0.075\"");
    int32_t size = 0;
    HostStrLock(value, &size);
    EXPECT_EQ(size, 2 * 6 + 2);

    const HostStr before = value;
    EXPECT_EQ(HostDesignGetAttribute(outline, form, 235, 0, &value), 0) << "another index";
    EXPECT_EQ(HostDesignGetAttribute(outline, form, 287, 0, &value), 0);
    EXPECT_EQ(value, before) << "a failed read leaves the slot";
    EXPECT_EQ(HostDesignSetAttribute(outline, form, 1, nullptr, 0), 0);
    EXPECT_EQ(HostDesignSetAttribute(outline, 0xBAD, 1, L"x", 0), 0);

    ASSERT_EQ(HostDesignSetAttribute(outline, form, 286, L"x", 1), 1);
    ASSERT_EQ(HostDesignDeleteAttribute(outline, form, 286), 1);
    EXPECT_EQ(HostDesignGetAttribute(outline, form, 286, 0, &value), 0);
    EXPECT_EQ(HostDesignGetAttribute(outline, form, 286, 1, &value), 0) << "every index goes";
    EXPECT_EQ(HostDesignGetAttribute(outline, form, 235, 1, &value), 1);
    EXPECT_EQ(HostDesignDeleteAttribute(outline, 0xBAD, 286), 0);
}

TEST_F(HostDesigner, AttributeStringsAreBorrowedAndFollowTheirValue) {
    HostDesignSetAttribute(outline, form, 287, L"cCalendar", 0);
    HostStr first = 0, again = 0;
    ASSERT_EQ(HostDesignGetAttribute(outline, form, 287, 0, &first), 1);
    const int32_t live = ZkHostLiveStrings();
    for (int i = 0; i < 5; ++i)
        ASSERT_EQ(HostDesignGetAttribute(outline, form, 287, 0, &again), 1);
    EXPECT_EQ(again, first);
    EXPECT_EQ(ZkHostLiveStrings(), live) << "reading makes no new strings";
    HostStrLock(first, nullptr)[0] = L'X';
    HostDesignGetAttribute(outline, form, 287, 0, &again);
    EXPECT_EQ(Text(again), L"cCalendar") << "a reader's scribbles do not last";
    HostDesignSetAttribute(outline, form, 287, L"cListView", 0);
    EXPECT_EQ(ZkHostStrRefs(first), 0) << "the string of the old value goes";
    HostDesignGetAttribute(outline, form, 287, 0, &again);
    EXPECT_EQ(Text(again), L"cListView");
}

TEST_F(HostDesigner, PropertiesGiveBackOneByteLessThanStored) {
    const uint8_t block[] = {1, 0, 0, 0, 1, 2, 3, 0, 0};
    ASSERT_EQ(HostPropSet(outline, form, L"ZK:Calendar", block, sizeof block), 1);
    HostStr data = 0;
    ASSERT_NE(HostPropGet(outline, form, L"ZK:Calendar", &data), 0);
    int32_t size = 0;
    const auto *bytes = reinterpret_cast<const uint8_t *>(HostStrLock(data, &size));
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(size, 8);
    EXPECT_EQ(std::vector<uint8_t>(bytes, bytes + size), std::vector<uint8_t>(block, block + 8));

    ASSERT_EQ(HostPropSet(outline, form, L"ZK:FontNamePrinter", L"YES", 4), 1);
    ASSERT_NE(HostPropGet(outline, form, L"ZK:FontNamePrinter", &data), 0);
    HostStrLock(data, &size);
    EXPECT_EQ(size, 3);
    EXPECT_EQ(HostPropGet(outline, form, L"zk:calendar", &data), 0) << "names are exact";
    EXPECT_EQ(HostPropGet(outline, form, L"ZK:Splitter", &data), 0);
}

TEST_F(HostDesigner, PropertiesRefuseWhatCannotBeStored) {
    const uint8_t one = 7;
    EXPECT_EQ(HostPropSet(outline, form, L"ZK:X", &one, 0), 0);
    EXPECT_EQ(HostPropSet(outline, form, L"ZK:X", nullptr, 4), 0);
    EXPECT_EQ(HostPropSet(outline, form, nullptr, &one, 1), 0);
    EXPECT_EQ(HostPropSet(outline, 0xBAD, L"ZK:X", &one, 1), 0);
    HostStr data = 0;
    EXPECT_EQ(HostPropGet(outline, form, L"ZK:X", &data), 0);
    EXPECT_EQ(HostPropGet(outline, form, L"ZK:X", nullptr), 0);
    ASSERT_EQ(HostPropSet(outline, form, L"ZK:X", &one, 1), 1);
    ASSERT_NE(HostPropGet(outline, form, L"ZK:X", &data), 0);
    int32_t size = -1;
    EXPECT_NE(HostStrLock(data, &size), nullptr);
    EXPECT_EQ(size, 0) << "one byte stored, none handed back";
}

TEST_F(HostDesigner, ReplacingAPropertyReleasesItsStringAndReadingMakesNone) {
    const uint8_t a[] = {1, 2, 3}, b[] = {4, 5, 6, 7};
    HostPropSet(outline, form, L"ZK:Spin", a, sizeof a);
    HostStr data = 0, again = 0;
    HostPropGet(outline, form, L"ZK:Spin", &data);
    const int32_t live = ZkHostLiveStrings();
    HostPropGet(outline, form, L"ZK:Spin", &again);
    EXPECT_EQ(again, data);
    EXPECT_EQ(ZkHostLiveStrings(), live);
    HostPropSet(outline, form, L"ZK:Spin", b, sizeof b);
    EXPECT_EQ(ZkHostStrRefs(data), 0);
    HostPropGet(outline, form, L"ZK:Spin", &again);
    int32_t size = 0;
    const auto *bytes = reinterpret_cast<const uint8_t *>(HostStrLock(again, &size));
    EXPECT_EQ(std::vector<uint8_t>(bytes, bytes + size), (std::vector<uint8_t>{4, 5, 6}));
}

TEST_F(HostDesigner, ItemCallsAreCountedAndTheFlagIsAnswered) {
    EXPECT_EQ(HostDesignItemQueryFlag(outline, form), 0);
    ASSERT_EQ(ZkHostDesignSetItemFlag(outline, form, 1), 1);
    EXPECT_EQ(HostDesignItemQueryFlag(outline, form), 1);
    EXPECT_EQ(ZkHostDesignUpdates(outline, form), 0);
    EXPECT_EQ(HostDesignItemUpdate(outline, form, 1, 0, 0), 1);
    EXPECT_EQ(HostDesignItemUpdate(outline, form, 1, 0, 0), 1);
    EXPECT_EQ(ZkHostDesignUpdates(outline, form), 2);
    int32_t flag = -1;
    EXPECT_EQ(ZkHostDesignNotifications(outline, form, &flag), 0);
    EXPECT_EQ(HostDesignNotifyItem(outline, form, 1, 0, 0), 1);
    EXPECT_EQ(ZkHostDesignNotifications(outline, form, &flag), 1);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(ZkHostDesignUpdates(outline, 0xBAD), -1);
}

TEST(HostParentWindowOnly, AnswersAsSetForTheParent) {
    zkt::TestWindow parent, other;
    HWND child = parent.AddButton(5, {0, 0, 40, 20}, L"b");
    HWND stranger = other.AddButton(6, {0, 0, 40, 20}, L"c");
    EXPECT_EQ(OrlParentWindowOnly(child), 0) << "while the host builds, by default";
    ZkHostSetParentWindowOnly(parent, 1);
    EXPECT_EQ(OrlParentWindowOnly(child), 1);
    EXPECT_EQ(OrlParentWindowOnly(stranger), 0);
    EXPECT_EQ(OrlParentWindowOnly(nullptr), 0);
    EXPECT_EQ(OrlParentWindowOnly(reinterpret_cast<HWND>(0x7777)), 0);
    ZkHostSetParentWindowOnly(parent, 0);
    EXPECT_EQ(OrlParentWindowOnly(child), 0);
}

} // namespace
