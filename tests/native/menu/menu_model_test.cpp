// The portable rules of the menu extensions: texts, records, free ids, the
// sums of an owner-drawn item, and the walks over a menu tree.
#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "menu/core/menu_layout.h"
#include "menu/core/menu_model.h"
#include "menu/core/menu_tree.h"

using namespace zk::menu;

namespace {

TEST(MenuText, OnlyTheFirstTabMarkBecomesATab) {
    struct Case {
        std::u16string in, out;
    } cases[] = {
        {u"Save\\tCtrl+S", u"Save\tCtrl+S"},
        {u"a\\tb\\tc", u"a\tb\\tc"},
        {u"\\t", u"\t"},
        {u"no mark\\", u"no mark\\"},
        {u"", u""},
    };
    for (const Case &c : cases)
        EXPECT_EQ(ReplaceTabMark(c.in), c.out);
    const TabParts parts = SplitAtTab(u"&Save\tCtrl+S\tx");
    EXPECT_TRUE(parts.hasTab);
    EXPECT_EQ(parts.before, u"&Save");
    EXPECT_EQ(parts.after, u"Ctrl+S\tx");
    EXPECT_FALSE(SplitAtTab(u"plain").hasTab);
}

TEST(MenuText, TheMnemonicIsTheCharacterAfterTheFirstAmpersand) {
    EXPECT_TRUE(MnemonicMatches(u"&Print", u'p', u'P'));
    EXPECT_TRUE(MnemonicMatches(u"Save &as", u'a', u'A'));
    EXPECT_FALSE(MnemonicMatches(u"Print", u'p', u'P'));
    EXPECT_FALSE(MnemonicMatches(u"Fish && &chips", u'c', u'C')); // the first "&" decides
    EXPECT_FALSE(MnemonicMatches(u"Trailing&", u'g', u'G'));
}

TEST(MenuSelector, PositionsCommandsAndTheInsertReading) {
    EXPECT_TRUE(IsPosition(0));
    EXPECT_TRUE(IsPosition(1023));
    EXPECT_FALSE(IsPosition(1024));
    EXPECT_FALSE(IsPosition(-1));
    EXPECT_TRUE(InsertsByPosition(-1));
    EXPECT_FALSE(InsertsByPosition(-2));
}

TEST(MenuRecords, FindRemoveAndTheCommandsAnItemReports) {
    int menuA = 0, menuB = 0;
    std::vector<MenuRecord> r = {
        {&menuA, 0x10005, kRecordReported, nullptr, nullptr, nullptr, nullptr},
        {&menuB, 0x20005, 0, nullptr, nullptr, nullptr, nullptr}, // a font alone: not reported
        {&menuB, 5, kRecordReported, nullptr, nullptr, nullptr, nullptr},
        {&menuB, -5, kRecordReported, nullptr, nullptr, nullptr, nullptr},
    };
    const auto n = static_cast<int32_t>(r.size());
    EXPECT_EQ(FindRecord(r.data(), n, &menuB, 5), 2);
    EXPECT_EQ(FindRecord(r.data(), n, &menuA, 5), -1);
    EXPECT_EQ(FindRecordById(r.data(), n, 5), 2);
    // Ids match in 16 bits; every match is reported with its whole id.
    EXPECT_EQ(CommandTargets(r.data(), n, 5), (std::vector<int32_t>{0x10005, 5}));
    EXPECT_EQ(CommandTargets(r.data(), n, 0xFFFB), std::vector<int32_t>{-5});
    RemoveRecord(r.data(), n, 1);
    // Packed fields are read by value.
    EXPECT_EQ(int32_t{r[1].id}, 5);
    EXPECT_EQ(int32_t{r[2].id}, -5);
    EXPECT_EQ(static_cast<void *>(r[3].menu), nullptr);
}

TEST(MenuRecords, TheFreeIdsComeBackHeadFirst) {
    CMenuStack stack;
    EXPECT_TRUE(stack.IsEmpty());
    stack.AddHead(7);
    stack.AddHead(-1);
    stack.AddHead(9);
    EXPECT_EQ(stack.Head(), 9);
    stack.RemoveHead();
    EXPECT_EQ(stack.Head(), -1);
    EXPECT_EQ(stack.Count(), 2u);
    stack.RemoveAll();
    EXPECT_TRUE(stack.IsEmpty());
}

TEST(MenuLayout, MeasureAndPlacement) {
    // Check width 13 stands for a height too.
    EXPECT_EQ(MeasureItem({true, 50, 16, 13, 16, 16}).width, 50 + 13 + 16 + 4);
    EXPECT_EQ(MeasureItem({true, 50, 16, 13, 16, 16}).height, 16);
    EXPECT_EQ(MeasureItem({true, 50, 12, 13, 8, 8}).height, 13);
    EXPECT_EQ(MeasureItem({false, 50, 30, 13, 16, 20}).height, 20);

    DrawMetrics m;
    m.item = {10, 100, 210, 120};
    m.pictureWidth = 16;
    m.pictureHeight = 16;
    m.centrePicture = true;
    m.afterTabWidth = 40;
    m.twoSpacesWidth = 8;
    m.checkWidth = 13;
    m.checkHeight = 14;
    ItemLayout at = LayoutItem(m);
    EXPECT_EQ(at.text.left, 10 + 16 + 2);
    EXPECT_EQ(at.afterTab.left, 210 - 8 - 13 - 40);
    EXPECT_EQ(at.picture, (zk::Point{10, 102}));
    EXPECT_EQ(at.pictureRows, 16);
    EXPECT_EQ(at.check.y, 103);
    // A bitmap taller than the item is cut and never placed above the top.
    m.pictureHeight = 30;
    at = LayoutItem(m);
    EXPECT_EQ(at.picture.y, 100);
    EXPECT_EQ(at.pictureRows, 20);
    // Icons sit at the item's top-left whatever their size.
    m.centrePicture = false;
    m.pictureHeight = 16;
    EXPECT_EQ(LayoutItem(m).picture, (zk::Point{10, 100}));
}

// Menus as lists of (id, submenu); ids of popups are -1.
struct Tree final : MenuTree {
    std::map<const void *, std::vector<std::pair<int32_t, const void *>>> menus;
    int32_t Count(const void *m) const override {
        auto it = menus.find(m);
        return it == menus.end() ? -1 : static_cast<int32_t>(it->second.size());
    }
    int32_t ItemId(const void *m, int32_t p) const override { return menus.at(m).at(p).first; }
    const void *SubMenu(const void *m, int32_t p) const override { return menus.at(m).at(p).second; }
};

TEST(MenuTreeWalk, HighestIdAndWhetherAMenuLiesBelow) {
    int root, file, recent, other;
    Tree t;
    t.menus[&root] = {{-1, &file}, {0xE146, nullptr}, {-7, &other}};
    t.menus[&file] = {{0xE100, nullptr}, {0, nullptr}, {-1, &recent}};
    t.menus[&recent] = {{0xF000, nullptr}, {-9, nullptr}};
    t.menus[&other] = {{0xF100, nullptr}};
    // Every submenu is opened for the highest id, compared as signed numbers.
    EXPECT_EQ(HighestId(t, &root, 0), 0xF100);
    EXPECT_EQ(HighestId(t, &recent, -100), 0xF000);
    EXPECT_EQ(HighestId(t, &recent, 0x10000), 0x10000);
    EXPECT_EQ(HighestId(t, nullptr, 3), 3);
    EXPECT_TRUE(TreeHolds(t, &root, &recent));
    EXPECT_TRUE(TreeHolds(t, &root, &other)); // a negative id is opened
    EXPECT_FALSE(TreeHolds(t, &file, &root));
    // A tree that holds itself ends.
    t.menus[&other] = {{-1, &root}};
    EXPECT_FALSE(TreeHolds(t, &root, &file + 1));
}

} // namespace
