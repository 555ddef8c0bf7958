// Item text, the item test and the table of live handles.
#include <gtest/gtest.h>

#include <cstring>

#include "frame/core/livehandles.h"
#include "outline/core/lbx.h"

using namespace zk::lbx;

namespace {

TEST(LbxText, EmptyByDefaultAndAfterAssigningEmpty) {
    LbxText text;
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.c_str()[0], u'\0');
    text.assign(u"abc");
    text.assign(u"");
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.c_str()[0], u'\0');
}

TEST(LbxText, CopiesShareUntilOneIsChanged) {
    LbxText a;
    a.assign(u"Row");
    LbxText b(a);
    EXPECT_EQ(a.c_str(), b.c_str());
    b.mutableData()[0] = u'r';
    EXPECT_NE(a.c_str(), b.c_str());
    EXPECT_EQ(a.view(), u"Row");
    EXPECT_EQ(b.view(), u"row");
    a = b;
    EXPECT_EQ(a.c_str(), b.c_str());
}

TEST(LbxText, FieldAddressLeadsToTheCharactersWhateverTheLength) {
    LbxText text;
    std::u16string longText(5000, u'x');
    text.assign(longText);
    EXPECT_EQ(std::u16string(LbxTextAtField(&text)), longText);
}

TEST(LbxIsItem, NullMinusOneForeignAndFreedFail) {
    EXPECT_FALSE(LbxIsItem(static_cast<const void *>(nullptr)));
    EXPECT_FALSE(LbxIsItem(~std::uintptr_t{0}));
    EXPECT_FALSE(LbxIsItem(std::uintptr_t{12345}));
    const char16_t foreign[] = u"just a string";
    EXPECT_FALSE(LbxIsItem(foreign));
    auto *item = new LbxItem();
    const void *address = item;
    EXPECT_TRUE(LbxIsItem(address));
    delete item;
    EXPECT_FALSE(LbxIsItem(address));
}

TEST(LbxIsItem, NeedsMagicAndSelf) {
    LbxItem item;
    EXPECT_EQ(item.self, &item);
    EXPECT_EQ(std::u16string(item.magic), u"LBX");
    EXPECT_TRUE(LbxIsItem(&item));
    item.magic[1] = u'X';
    EXPECT_FALSE(LbxIsItem(&item));
    item.magic[1] = u'B';
    item.self = nullptr;
    EXPECT_FALSE(LbxIsItem(&item));
    item.self = &item;
    EXPECT_TRUE(LbxIsItem(&item));
}

TEST(LbxIsItem, ANodeIsNoItemAndAnItemNoNode) {
    LbxNode node;
    LbxItem item;
    EXPECT_FALSE(LbxIsItem(&node));
    EXPECT_FALSE(LbxIsNode(&item));
    EXPECT_TRUE(LbxIsNode(&node));
}

TEST(LiveHandles, KindsAreKeptApartAndCounted) {
    int a = 0, b = 0;
    const std::size_t pictures = zk::LiveCount(zk::LiveKind::Picture);
    zk::LiveAdd(zk::LiveKind::Picture, &a);
    EXPECT_TRUE(zk::IsLive(zk::LiveKind::Picture, &a));
    EXPECT_FALSE(zk::IsLive(zk::LiveKind::OutlineNode, &a));
    EXPECT_FALSE(zk::IsLive(zk::LiveKind::Picture, &b));
    EXPECT_EQ(zk::LiveCount(zk::LiveKind::Picture), pictures + 1);
    zk::LiveRemove(zk::LiveKind::OutlineNode, &a); // the wrong kind leaves it
    EXPECT_TRUE(zk::IsLive(zk::LiveKind::Picture, &a));
    zk::LiveRemove(zk::LiveKind::Picture, &a);
    EXPECT_FALSE(zk::IsLive(zk::LiveKind::Picture, &a));
    EXPECT_EQ(zk::LiveCount(zk::LiveKind::Picture), pictures);
    zk::LiveAdd(zk::LiveKind::Picture, nullptr);
    EXPECT_FALSE(zk::IsLive(zk::LiveKind::Picture, nullptr));
}

TEST(LiveHandles, AnAddressReusedByAnotherKindIsReentered) {
    int a = 0;
    zk::LiveAdd(zk::LiveKind::OutlineItem, &a);
    zk::LiveAdd(zk::LiveKind::Picture, &a);
    EXPECT_FALSE(zk::IsLive(zk::LiveKind::OutlineItem, &a));
    EXPECT_TRUE(zk::IsLive(zk::LiveKind::Picture, &a));
    zk::LiveRemove(zk::LiveKind::Picture, &a);
}

} // namespace
