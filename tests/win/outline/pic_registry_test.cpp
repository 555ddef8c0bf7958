// The picture and font registries of a list. The registries are not
// exported: this program compiles its own copies from the library's
// sources, so the pictures here are made in the program itself.
#include <gtest/gtest.h>

#include "frame/core/livehandles.h"
#include "frame/win/guard.h"
#include "outline/win/pic.h"
#include "zkt_window.h"

using namespace zk::lbx;

namespace {

size_t LivePictures() { return zk::LiveCount(zk::LiveKind::Picture); }

PIC *Owned(bool owned) {
    PIC *p = new PIC();
    p->flags = owned ? PIC_ListOwned : 0;
    return p;
}

class Registry : public ::testing::Test {
protected:
    zkt::TestWindow window{200, 100};
    HWND list = window.AddListBox(1, {0, 0, 100, 80});
};

TEST_F(Registry, PicturesAddedOnceAndOwnedOnesFreed) {
    const size_t before = LivePictures();
    PIC *owned = Owned(true);
    PIC *kept = Owned(false);
    EXPECT_EQ(zk::lbx::LbxPicGet(list), nullptr);
    zk::lbx::CPicArray *registry = zk::lbx::LbxPicAdd(list, owned);
    ASSERT_NE(registry, nullptr);
    EXPECT_EQ(GetPropW(list, L"ZK:PicList"), registry);
    EXPECT_EQ(zk::lbx::LbxPicAdd(list, owned), registry);
    EXPECT_EQ(zk::lbx::LbxPicAdd(list, nullptr), registry);
    EXPECT_EQ(zk::lbx::LbxPicAdd(list, kept), registry);
    EXPECT_EQ(registry->Count(), 2);
    EXPECT_EQ(registry->At(1), kept);
    EXPECT_EQ(LivePictures(), before + 2);
    zk::lbx::LbxPicFreeAll(list);
    EXPECT_EQ(GetPropW(list, L"ZK:PicList"), nullptr);
    EXPECT_FALSE(zk::lbx::PicIsLive(owned));
    EXPECT_TRUE(zk::lbx::PicIsLive(kept));
    EXPECT_EQ(zk::lbx::PicFree(kept), 0);
    EXPECT_EQ(LivePictures(), before);
    EXPECT_EQ(zk::lbx::LbxPicAdd(nullptr, owned), nullptr);
}

TEST_F(Registry, NewRegistryOfEmptySlots) {
    PIC *first = Owned(true);
    zk::lbx::LbxPicAdd(list, first);
    zk::lbx::CPicArray *set = zk::lbx::LbxPicNew(list, 3);
    ASSERT_NE(set, nullptr);
    EXPECT_FALSE(zk::lbx::PicIsLive(first)); // the old registry went with its owned pictures
    EXPECT_EQ(set->Count(), 3);
    EXPECT_EQ(set->At(2), nullptr);
    EXPECT_THROW(set->At(3), zk::InvalidArgException);
    EXPECT_THROW(set->At(-1), zk::InvalidArgException);
    EXPECT_THROW(set->SetAt(3, nullptr), zk::InvalidArgException);
    PIC *second = Owned(true);
    set->SetAt(1, second);
    EXPECT_EQ(set->At(1), second);
    EXPECT_EQ(zk::lbx::LbxPicNew(list, -1), nullptr);
    zk::lbx::LbxPicFreeAll(list);
    EXPECT_FALSE(zk::lbx::PicIsLive(second));
}

TEST_F(Registry, PicturesFreedBehindTheRegistryAreNotFreedTwice) {
    PIC *p = Owned(true);
    zk::lbx::CPicArray *set = zk::lbx::LbxPicNew(list, 2);
    set->SetAt(0, p);
    set->SetAt(1, p);
    EXPECT_EQ(zk::lbx::PicFree(p), 0);
    zk::lbx::LbxPicFreeAll(list); // would fault on a freed or doubled entry
    EXPECT_EQ(zk::lbx::LbxPicGet(list), nullptr);
}

TEST_F(Registry, FontsExceptTheControlsOwn) {
    HFONT own = CreateFontW(-12, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    HFONT other = CreateFontW(-14, 0, 0, 0, 700, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(own), FALSE);
    zk::lbx::CFontArray *fonts = zk::lbx::LbxFontAdd(list, own);
    ASSERT_NE(fonts, nullptr);
    EXPECT_EQ(GetPropW(list, L"ZK:FontList"), fonts);
    EXPECT_EQ(zk::lbx::LbxFontAdd(list, own), fonts);
    EXPECT_EQ(zk::lbx::LbxFontAdd(list, nullptr), fonts);
    EXPECT_EQ(zk::lbx::LbxFontAdd(list, other), fonts);
    EXPECT_EQ(fonts->Count(), 2);
    EXPECT_EQ(fonts->Find(other), 1);
    EXPECT_EQ(fonts->At(0), own);
    EXPECT_THROW(fonts->At(2), zk::InvalidArgException);
    zk::lbx::LbxFontFreeAll(list);
    EXPECT_EQ(GetPropW(list, L"ZK:FontList"), nullptr);
    LOGFONTW logical{};
    EXPECT_EQ(GetObjectW(own, sizeof(logical), &logical), static_cast<int>(sizeof(logical)));
    EXPECT_EQ(GetObjectW(other, sizeof(logical), &logical), 0);
    SendMessageW(list, WM_SETFONT, 0, FALSE);
    DeleteObject(own);
}

TEST_F(Registry, NewFontRegistryFilledBySlot) {
    zk::lbx::CFontArray *fonts = zk::lbx::LbxFontNew(list, 2);
    ASSERT_NE(fonts, nullptr);
    EXPECT_EQ(fonts->At(1), nullptr);
    HFONT a = CreateFontW(-10, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    HFONT b = CreateFontW(-11, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    fonts->SetAt(1, a);
    fonts->SetAt(1, a);
    LOGFONTW logical{};
    EXPECT_NE(GetObjectW(a, sizeof(logical), &logical), 0); // setting the same handle again keeps it
    fonts->SetAt(1, b);                                     // a replaced slot gives up its font
    EXPECT_EQ(GetObjectW(a, sizeof(logical), &logical), 0);
    zk::lbx::CFontArray *again = zk::lbx::LbxFontNew(list, 1);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(GetObjectW(b, sizeof(logical), &logical), 0);
    zk::lbx::LbxFontFreeAll(list);
}

} // namespace
