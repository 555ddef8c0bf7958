// The reference host's designer outline as a portable model: the tree,
// bindings of windows, values and the release of strings handed out.
#include <gtest/gtest.h>

#include <vector>

#include "core/design_outline.h"

using zkh::DesignOutlines;

namespace {

std::vector<uint32_t> released;
void Release(uint32_t handle) { released.push_back(handle); }

class DesignModel : public ::testing::Test {
protected:
    void SetUp() override { released.clear(); }
    DesignOutlines store{&Release};
};

TEST_F(DesignModel, ItemsFormATreeWalkedByFirstChildAndNextSibling) {
    const auto outline = store.NewOutline();
    const auto form = store.AddItem(outline, 0, 1);
    const auto a = store.AddItem(outline, form, 22);
    const auto b = store.AddItem(outline, form, 22);
    const auto inner = store.AddItem(outline, a, 8);
    ASSERT_TRUE(outline && form && a && b && inner);
    EXPECT_EQ(store.FirstChild(outline, 0), form);
    EXPECT_EQ(store.FirstChild(outline, form), a);
    EXPECT_EQ(store.Find(outline, a)->nextSibling, b);
    EXPECT_EQ(store.Find(outline, b)->nextSibling, 0u);
    EXPECT_EQ(store.Find(outline, inner)->parent, a);
    EXPECT_EQ(store.Find(outline, a)->type, 22);
    EXPECT_EQ(store.FirstChild(outline, b), 0u);
}

TEST_F(DesignModel, AnItemIsFoundOnlyWithItsOwnOutline) {
    const auto one = store.NewOutline();
    const auto two = store.NewOutline();
    const auto item = store.AddItem(one, 0, 1);
    EXPECT_NE(store.Find(one, item), nullptr);
    EXPECT_EQ(store.Find(two, item), nullptr);
    EXPECT_EQ(store.Find(one, 0), nullptr);
    EXPECT_EQ(store.AddItem(two, item, 1), 0u) << "a parent of another outline";
    EXPECT_EQ(store.AddItem(999, 0, 1), 0u);
}

TEST_F(DesignModel, AWindowBelongsToOneItemAtATime) {
    const auto outline = store.NewOutline();
    const auto a = store.AddItem(outline, 0, 1);
    const auto b = store.AddItem(outline, 0, 1);
    ASSERT_TRUE(store.BindWindow(outline, a, 0x1234));
    EXPECT_EQ(store.WindowItem(0x1234), std::make_pair(outline, a));
    ASSERT_TRUE(store.BindWindow(outline, b, 0x1234));
    EXPECT_EQ(store.WindowItem(0x1234), std::make_pair(outline, b));
    EXPECT_EQ(store.Find(outline, a)->window, 0u);
    ASSERT_TRUE(store.BindWindow(outline, b, 0));
    EXPECT_EQ(store.WindowItem(0x1234), std::make_pair(0u, 0u));
}

TEST_F(DesignModel, AttributesAreAddressedByNumberAndIndex) {
    const auto outline = store.NewOutline();
    const auto item = store.AddItem(outline, 0, 22);
    ASSERT_TRUE(store.SetAttribute(outline, item, 286, 0, u"ZK:cCalendar:10"));
    ASSERT_TRUE(store.SetAttribute(outline, item, 287, 0, u"cCalendar"));
    EXPECT_EQ(store.GetAttribute(outline, item, 286, 0)->text, u"ZK:cCalendar:10");
    EXPECT_EQ(store.GetAttribute(outline, item, 286, 1), nullptr);
    ASSERT_TRUE(store.DeleteAttribute(outline, item, 286));
    EXPECT_EQ(store.GetAttribute(outline, item, 286, 0), nullptr);
    EXPECT_EQ(store.GetAttribute(outline, item, 287, 0)->text, u"cCalendar") << "other attributes stay";
    EXPECT_TRUE(store.DeleteAttribute(outline, item, 999)) << "nothing to delete is no error";
    EXPECT_FALSE(store.DeleteAttribute(outline, 0, 286));
}

TEST_F(DesignModel, StringsHandedOutGoWhenTheirValuesChangeOrTheOutlineGoes) {
    const auto outline = store.NewOutline();
    const auto item = store.AddItem(outline, 0, 22);
    const auto child = store.AddItem(outline, item, 8);
    store.SetProperty(outline, item, u"ZK:Calendar", {1, 2, 3});
    store.FindProperty(outline, item, u"ZK:Calendar")->hostString = 11;
    store.SetProperty(outline, item, u"ZK:Calendar", {4});
    EXPECT_EQ(released, std::vector<uint32_t>{11});
    EXPECT_EQ(store.FindProperty(outline, item, u"ZK:Calendar")->hostString, 0u);
    store.SetAttribute(outline, child, 1, 0, u"x");
    store.FindAttribute(outline, child, 1, 0)->hostString = 12;
    store.FindProperty(outline, item, u"ZK:Calendar")->hostString = 13;
    store.BindWindow(outline, child, 0x99);
    ASSERT_TRUE(store.FreeOutline(outline));
    EXPECT_EQ(released.size(), 3u);
    EXPECT_EQ(store.LiveItems(), 0u);
    EXPECT_EQ(store.WindowItem(0x99), std::make_pair(0u, 0u)) << "windows of a gone outline are unbound";
    EXPECT_EQ(store.Find(outline, item), nullptr);
    EXPECT_FALSE(store.FreeOutline(outline));
}

} // namespace
