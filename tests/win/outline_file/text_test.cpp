// Loading a tree from an indented text file.
#include "support.h"

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

    void Write(const std::string &bytes) {
        HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(file, INVALID_HANDLE_VALUE);
        DWORD written = 0;
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(file);
    }
    ZelItemHandle LoadText(const std::string &bytes, ZelPicHandle pn = 0, ZelPicHandle ps = 0, ZelPicHandle ln = 0,
                           ZelPicHandle ls = 0) {
        Write(bytes);
        return ZelListLoadOutlineFile(list, path.c_str(), pn, ps, ln, ls);
    }
};

TEST_F(TextFileTest, ATabCountsEightColumnsAndSiblingsStartHidden) {
    const ZelItemHandle root = LoadText("A\r\n\tB\r\n        C\r\n");
    ASSERT_EQ(root, Root());
    EXPECT_EQ(Describe(root), "A v0 f40180000 c000000\n"
                              "  B v0 f00090000 c000000\n"
                              "  C v0 f02070000 c000000\n");
    EXPECT_EQ(Rows(list), 0); // the caller shows the outline
    ASSERT_EQ(ZelListShowOutline(list, 32766), 1);
    EXPECT_EQ(Rows(list), 2); // C was loaded as a sibling: hidden
    ASSERT_EQ(ZelListShowOutline(list, 32767), 1);
    EXPECT_EQ(Rows(list), 3);
}

TEST_F(TextFileTest, DefaultPicturesComeFromTheLibraryAndParentsTakeThePlusPair) {
    ASSERT_NE(LoadText("A\r\n\tB\r\n"), 0);
    CPicArray *pics = PicRegistry(list);
    ASSERT_TRUE(pics && pics->Count() == 4);
    const wchar_t *names[] = {L"plusdk", L"pluswht", L"minusdk", L"minuswht"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(PicAt(pics, i)->name, names[i]);
        EXPECT_EQ(PicAt(pics, i)->source, L"ZKLIB.dll");
        EXPECT_EQ(PicAt(pics, i)->flags, 0x8201);
        EXPECT_NE(PicAt(pics, i)->bitmap, nullptr);
    }
    const LbxNode *root = Node(Root());
    const LbxNode *a = root->firstChild;
    const LbxNode *b = a->firstChild;
    // The root takes the parent pictures from the first line on.
    EXPECT_EQ(root->item->picNormal, PicAt(pics, 0));
    EXPECT_EQ(root->item->picSelected, PicAt(pics, 1));
    EXPECT_EQ(a->item->picNormal, PicAt(pics, 0));
    EXPECT_EQ(a->item->picSelected, PicAt(pics, 1));
    EXPECT_EQ(b->item->picNormal, PicAt(pics, 2));
    EXPECT_EQ(b->item->picSelected, PicAt(pics, 3));

    // Given pictures stay the application's: only the defaults join the registry.
    const ZelPicHandle mine = ZelPicLoad(0x0201, L"ZKLIB.dll", L"radioon");
    ASSERT_NE(LoadText("X\r\n Y\r\n", 0, mine, mine, 0), 0);
    pics = PicRegistry(list);
    ASSERT_TRUE(pics && pics->Count() == 2);
    EXPECT_EQ(PicAt(pics, 0)->name, L"plusdk");
    EXPECT_EQ(PicAt(pics, 1)->name, L"minuswht");
    const LbxNode *y = Node(Root())->firstChild->firstChild;
    EXPECT_EQ(y->item->picNormal, Pic(mine));
    EXPECT_EQ(y->item->picSelected, PicAt(pics, 1));
    EXPECT_EQ(Node(Root())->item->picSelected, Pic(mine));
    DestroyWindow(list);
    EXPECT_EQ(ZelPicFree(mine), 0);
}

TEST_F(TextFileTest, ShallowerAndEmptyLinesFindTheirPlace) {
    // C lies between A and B: loaded as a child of A, a sibling of B by place.
    ASSERT_NE(LoadText("\r\nA\r\n        B\r\n\r\n    C\r\n  \t \r\nD"), 0);
    EXPECT_EQ(Describe(Root()), "A v0 f40180000 c000000\n"
                                "  B v0 f00090000 c000000\n"
                                "  C v0 f00070000 c000000\n"
                                "D v0 f00060000 c000000\n");
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
    for (int level = 0; level <= 256; ++level) deep += std::string(static_cast<size_t>(level), ' ') + "n\r\n";
    EXPECT_EQ(LoadText(deep), 0);
    untouched("257 levels");
    EXPECT_EQ(ZelListLoadOutlineFile(list, L"Z:\\no\\such\\outline.txt", 0, 0, 0, 0), 0);
    untouched("no file");
    EXPECT_EQ(ZelListLoadOutlineFile(list, nullptr, 0, 0, 0, 0), 0);
    untouched("no name");
    HWND plain = form.addListBox(106, {0, 0, 10, 10}, kListStyle);
    Write("A\r\n");
    EXPECT_EQ(ZelListLoadOutlineFile(plain, path.c_str(), 0, 0, 0, 0), 0);
    // The largest file allowed loads.
    ASSERT_NE(LoadText(std::string(65533, 'y')), 0);
    EXPECT_EQ(NodeText(Node(Root())->firstChild), std::wstring(65533, L'y'));
}

} // namespace
