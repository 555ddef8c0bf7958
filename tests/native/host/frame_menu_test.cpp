// The menu structure of a host frame: read from the platform menu, changed
// by the frame's operations only.
#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "core/frame_menu.h"

using namespace zkh;

namespace {

struct Platform final : MenuSource {
    std::map<uint64_t, std::vector<PlatformItem>> menus;
    int Count(uint64_t m) const override {
        auto it = menus.find(m);
        return it == menus.end() ? -1 : static_cast<int>(it->second.size());
    }
    bool Read(uint64_t m, int p, PlatformItem &item, bool) const override {
        auto it = menus.find(m);
        if (it == menus.end() || p < 0 || p >= static_cast<int>(it->second.size()))
            return false;
        item = it->second[static_cast<size_t>(p)];
        return true;
    }
};

Platform Menus() {
    Platform p;
    p.menus[1] = {{-1, 2, 0, u"&File"}, {-1, 3, 0, u"&Edit"}, {0xE146, 0, 0, u"&Help"}};
    p.menus[2] = {{0xE100, 0, kMenuChecked, u"&New"}, {0, 0, kMenuSeparator, u""}, {0xE141, 0, 0, u"E&xit"}};
    p.menus[3] = {{-5, 0, kMenuGrayed, u"&Undo"}};
    return p;
}

TEST(FrameMenuStructure, AttachReadsTheTreeAndLaterPlatformChangesDoNotShow) {
    Platform p = Menus();
    FrameMenu f;
    f.Attach(p, 1);
    ASSERT_EQ(f.Top().size(), 3u);
    EXPECT_EQ(f.Top()[0].children.size(), 3u);
    EXPECT_TRUE(f.FindId(0xE100)->checked);
    EXPECT_FALSE(f.FindId(-5)->enabled);
    EXPECT_EQ(f.FindKey(3)->text, u"&Edit"); // a popup by its submenu
    EXPECT_EQ(f.FindKey(-5)->text, u"&Undo");
    EXPECT_EQ(f.FindId(0), nullptr); // separators are no commands
    EXPECT_EQ(f.FindAt(2, 2)->id, 0xE141);
    EXPECT_EQ(f.FindAt(2, 3), nullptr);

    p.menus[2][0].text = u"&Changed";
    p.menus[3].push_back({0xE122, 0, 0, u"&Copy"});
    EXPECT_EQ(f.FindId(0xE100)->text, u"&New");
    EXPECT_EQ(f.FindId(0xE122), nullptr);
    // Inserting mirrors the one item at its place.
    EXPECT_TRUE(f.Insert(p, 0xE122, 0));
    EXPECT_EQ(f.FindAt(3, 1)->text, u"&Copy");
    EXPECT_EQ(f.FindId(0xE100)->text, u"&New");
    EXPECT_FALSE(f.Insert(p, 0x7777, 0));
    // Reading again takes everything.
    f.Attach(p, 1);
    EXPECT_EQ(f.FindId(0xE100)->text, u"&Changed");
}

TEST(FrameMenuStructure, AnItemInsertedTwiceIsReadAgainAndKeepsItsPicture) {
    Platform p = Menus();
    FrameMenu f;
    f.Attach(p, 1);
    p.menus[2].insert(p.menus[2].begin(), {0xE150, 0, 0, u"One"});
    ASSERT_TRUE(f.Insert(p, 0xE150, kMenuChecked));
    f.FindId(0xE150)->picture = {PictureKind::Icon, 42, 0, 16, 16};
    p.menus[2][0].text = u"Two";
    ASSERT_TRUE(f.Insert(p, 0xE150, 0));
    EXPECT_EQ(f.Top()[0].children.size(), 4u);
    EXPECT_EQ(f.FindId(0xE150)->text, u"Two");
    EXPECT_EQ(f.FindId(0xE150)->picture.image, 42u);
    // A loop in the platform's tree ends.
    p.menus[3].push_back({-1, 1, 0, u"loop"});
    f.Attach(p, 1);
    EXPECT_NE(f.FindId(-5), nullptr);
}

} // namespace
