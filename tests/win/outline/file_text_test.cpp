// Loading a tree from an indented text file.
#include "file_support.h"

namespace {

using namespace ofiletest;

struct TextFileTest : FileFixture {
    std::wstring path;

    void SetUp() override {
        FileFixture::SetUp();
        wchar_t dir[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, dir);
        path = std::wstring(dir) + L"zk_outline_" + std::to_wstring(GetCurrentProcessId()) + L".txt";
    }
    void TearDown() override { DeleteFileW(path.c_str()); }

    ZelItemHandle LoadText(const std::string &bytes, ZelPicHandle pn = 0, ZelPicHandle ps = 0, ZelPicHandle ln = 0,
                           ZelPicHandle ls = 0, HWND w = nullptr) {
        EXPECT_TRUE(filestest::Write(path, bytes));
        return ZelListLoadOutlineFile(w ? w : list, path.c_str(), pn, ps, ln, ls);
    }
};

TEST_F(TextFileTest, SiblingsStartHiddenAndParentsTakeThePlusPair) {
    const ZelItemHandle root = LoadText("A\r\n\tB\r\n        C\r\n");
    ASSERT_EQ(root, Root());
    EXPECT_EQ(Describe(root), "A v0 f40180000 c000000\n"
                              "  B v0 f00090000 c000000\n"
                              "  C v0 f02070000 c000000\n");
    EXPECT_EQ(Rows(list), 0); // the caller shows the outline
    ASSERT_EQ(ZelListShowOutline(list, 32766), 1);
    EXPECT_EQ(Rows(list), 2);
    // The default pictures come from the library; the root takes the parent pair too.
    CPicArray *pics = PicRegistry(list);
    ASSERT_TRUE(pics && pics->Count() == 4);
    const wchar_t *names[] = {L"plusdk", L"pluswht", L"minusdk", L"minuswht"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(PicAt(pics, i)->name, names[i]);
        EXPECT_EQ(PicAt(pics, i)->flags, 0x8201);
    }
    const LbxNode *a = Node(root)->firstChild;
    EXPECT_EQ(Node(root)->item->picNormal, PicAt(pics, 0));
    EXPECT_EQ(a->item->picSelected, PicAt(pics, 1));
    EXPECT_EQ(a->firstChild->item->picNormal, PicAt(pics, 2));
    EXPECT_EQ(a->firstChild->item->picSelected, PicAt(pics, 3));
    // Given pictures stay the application's: only the defaults join the registry.
    const ZelPicHandle mine = ZelPicLoad(0x0201, L"ZKLIB.dll", L"radioon");
    ASSERT_NE(LoadText("X\r\n Y\r\n", 0, mine, mine, 0), 0);
    pics = PicRegistry(list);
    ASSERT_TRUE(pics && pics->Count() == 2);
    EXPECT_EQ(PicAt(pics, 1)->name, L"minuswht");
    const LbxNode *y = Node(Root())->firstChild->firstChild;
    EXPECT_EQ(y->item->picNormal, reinterpret_cast<PIC *>(mine));
    EXPECT_EQ(y->item->picSelected, PicAt(pics, 1));
    DestroyWindow(list);
    EXPECT_EQ(ZelPicFree(mine), 0);
}

TEST_F(TextFileTest, AFileThatCannotBeReadWholeChangesNothing) {
    ASSERT_NE(LoadText("keep\r\n\tthis\r\n"), 0);
    ASSERT_EQ(ZelListShowOutline(list, 32767), 1);
    const std::string before = Describe(Root());
    CPicArray *pics = PicRegistry(list);
    auto untouched = [&](const char *what) {
        EXPECT_EQ(Describe(Root()), before) << what;
        EXPECT_EQ(Rows(list), 2) << what;
        EXPECT_EQ(PicRegistry(list), pics) << what;
    };
    EXPECT_EQ(LoadText(std::string(65534, 'x')), 0);
    untouched("65534 bytes");
    std::string deep;
    for (int level = 0; level <= 256; ++level)
        deep += std::string(static_cast<size_t>(level), ' ') + "n\r\n";
    EXPECT_EQ(LoadText(deep), 0);
    untouched("257 levels");
    EXPECT_EQ(ZelListLoadOutlineFile(list, L"Z:\\no\\such\\outline.txt", 0, 0, 0, 0), 0);
    EXPECT_EQ(ZelListLoadOutlineFile(list, nullptr, 0, 0, 0, 0), 0);
    untouched("no file");
    EXPECT_EQ(LoadText("A\r\n", 0, 0, 0, 0, form.AddListBox(106, {0, 0, 10, 10}, kListStyle)), 0); // not adopted
    // The largest file allowed loads.
    ASSERT_NE(LoadText(std::string(65533, 'y')), 0);
    EXPECT_EQ(NodeText(Node(Root())->firstChild), std::wstring(65533, L'y'));
}

} // namespace
