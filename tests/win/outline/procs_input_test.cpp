// Keys and clicks of adopted lists: type-ahead, paging, the box of an outline row.
#include "model_fixture.h"

extern "C" {
#include "zklib/listpaint.h"
}

namespace {

using namespace outlinetest;

struct KeyFixture : ListFixture {
    void SetUp() override {
        ListFixture::SetUp();
        Add({L"apple", L"banana", L"blueberry", L"cherry"});
        for (int i = 0; i < 26; ++i) {
            ZelListAddColor(list, L"zz", 0);
        }
        for (int row = 0; row < 30; ++row) {
            Send(list, LB_SETITEMHEIGHT, static_cast<WPARAM>(row), 20);
        }
    }
    void Key(WPARAM key) { Send(list, WM_KEYDOWN, key, 1); }
};

TEST_F(KeyFixture, TypeAheadFindsTheNextRowWithTheLetter) {
    Send(list, LB_SETCURSEL, 1);
    Key('B');
    EXPECT_EQ(Send(list, LB_GETCURSEL), 2);
    Key('B'); // from the last b the search wraps round to the first
    EXPECT_EQ(Send(list, LB_GETCURSEL), 1);
    Key('A');
    EXPECT_EQ(Send(list, LB_GETCURSEL), 0);
    Key('Q'); // no such row: the selection stays
    EXPECT_EQ(Send(list, LB_GETCURSEL), 0);
}

TEST_F(KeyFixture, TypeAheadStopsAtARowThatIsNoItem) {
    static const wchar_t foreign[] = L"bravo";
    CallWindowProcW(BaseProc(list), list, LB_INSERTSTRING, 1, reinterpret_cast<LPARAM>(foreign));
    Send(list, LB_SETCURSEL, 0);
    Key('B');
    EXPECT_EQ(Send(list, LB_GETCURSEL), 0);
}

TEST_F(KeyFixture, PagingMovesByTheRowsInView) {
    // 20-pixel rows in a 200-pixel window: the tenth row reaches the height, nine are in view.
    Send(list, LB_SETCURSEL, 12);
    Key(VK_PRIOR);
    EXPECT_EQ(Send(list, LB_GETCURSEL), 4);
    Send(list, LB_SETCURSEL, 3);
    Key(VK_PRIOR);
    EXPECT_EQ(Send(list, LB_GETCURSEL), 0);
    Send(list, LB_SETCURSEL, static_cast<WPARAM>(-1));
    Key(VK_NEXT);
    EXPECT_EQ(Send(list, LB_GETCURSEL), 8);
    Send(list, LB_SETCURSEL, 27);
    Key(VK_NEXT);
    EXPECT_EQ(Send(list, LB_GETCURSEL), 29);
}

// An outline row made by hand: the root node stands in for a node of level 1.
struct BoxFixture : ListFixture {
    LbxNode *root = nullptr;
    LbxItem *item = nullptr;
    RECT row{};
    int boxX = 0, boxY = 0;

    void SetUp() override {
        ListFixture::SetUp();
        ZelListSetStyle(list, LBX_StyleOutline, nullptr);
        Send(list, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
        Add({L"node row", L"second"});
        root = reinterpret_cast<LbxNode *>(ZelListGetRoot(list));
        item = ItemAt(list, 0);
        ASSERT_NE(root, nullptr);
        ASSERT_NE(item, nullptr);
        item->node = root;
        root->level = 1;
        Send(list, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
        const int step = 8 * (FontMetrics(list, GetStockObject(DEFAULT_GUI_FONT)).tmAveCharWidth / 2);
        boxX = LbxLineX(step, 1, row.left);
        boxY = LbxMidY(LbxRect{row.left, row.top, row.right, row.bottom});
        zkt::PumpMessages();
    }
    void TearDown() override {
        item->node = nullptr;
        root->level = -1;
    }
    void Click(int x, int y) {
        Send(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        Send(list, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }
};

TEST_F(BoxFixture, AClickOnTheBoxPostsTheToggleAndSelectsNothing) {
    zkt::MessageRecorder recorder;
    recorder.watch(list);
    Click(boxX, boxY);
    EXPECT_EQ(Send(list, LB_GETCURSEL), LB_ERR);
    EXPECT_EQ(recorder.count(ZKM_LbxToggle), 0); // posted: not there yet
    zkt::PumpMessages();
    EXPECT_TRUE(zkt::MatchSequence(recorder.messages(),
                                   {{WM_LBUTTONDOWN, zkt::sent},
                                    {WM_LBUTTONUP, zkt::sent},
                                    {LB_GETCURSEL, zkt::sent},
                                    {ZKM_LbxToggle, zkt::posted | zkt::wparam, 0}},
                                   [] {
                                       auto ignore = PaintNoise();
                                       ignore.insert(ignore.end(), {LB_GETTOPINDEX, LB_GETCOUNT, LB_GETITEMHEIGHT,
                                                                    LB_GETITEMRECT, LB_GETHORIZONTALEXTENT});
                                       return ignore;
                                   }()));
}

TEST_F(BoxFixture, TheIndentAndTheSpaceRightOfTheTextSwallowTheClick) {
    Click(boxX - 6, boxY);
    EXPECT_EQ(Send(list, LB_GETCURSEL), LB_ERR);
    Click(row.right - 3, boxY);
    EXPECT_EQ(Send(list, LB_GETCURSEL), LB_ERR);
    int32_t top = 0, left = 0, bottom = 0, right = 0;
    ASSERT_EQ(ZelListGetTextRectangle(list, 0, &top, &left, &bottom, &right), 1);
    Click(left + 2, boxY);
    EXPECT_EQ(Send(list, LB_GETCURSEL), 0);
    zkt::MessageRecorder recorder;
    recorder.watch(list);
    zkt::PumpMessages();
    EXPECT_EQ(recorder.count(ZKM_LbxToggle), 0);
}

TEST_F(BoxFixture, ButtonUpPostsSelectDoneOnceARowIsSelected) {
    zkt::MessageRecorder recorder;
    recorder.watch(list);
    Send(list, WM_LBUTTONUP, 0, MAKELPARAM(row.right - 3, boxY));
    zkt::PumpMessages();
    EXPECT_EQ(recorder.count(ZKM_LbxSelectDone), 0);
    Send(list, LB_SETCURSEL, 1);
    Send(list, WM_KEYUP, VK_DOWN, 0);
    zkt::PumpMessages();
    EXPECT_EQ(recorder.count(ZKM_LbxSelectDone), 1);
    Send(list, WM_LBUTTONUP, 0, MAKELPARAM(boxX, boxY)); // on the box: swallowed
    zkt::PumpMessages();
    EXPECT_EQ(recorder.count(ZKM_LbxSelectDone), 1);
}

} // namespace
