// Images kept in step in both lists and shown in the rows, and the block:
// loaded from a design item at creation, and its image lists through the
// platform's stream form.
#include <cstring>

#include "block_bytes.h"
#include "frame/core/block_io.h"
#include "hdr_support.h"
#include "headerlist/core/headerlist_block.h"
#include "headerlist/win/headerlist_bootstrap.h"

namespace {

using hdrtest::FormList;

// A BMP in memory: side by side pixels of one colour, the top-left one black
// (the colour the library makes transparent when a bitmap has no mask).
std::vector<uint8_t> Bmp(int side, COLORREF colour) {
    const int stride = (side * 3 + 3) & ~3;
    std::vector<uint8_t> bytes(54 + stride * side, 0);
    auto put = [&](size_t at, uint32_t value, int count) {
        for (int i = 0; i < count; ++i)
            bytes[at + i] = static_cast<uint8_t>(value >> (8 * i));
    };
    put(0, 0x4D42, 2);
    put(2, static_cast<uint32_t>(bytes.size()), 4);
    put(10, 54, 4);
    put(14, 40, 4);
    put(18, static_cast<uint32_t>(side), 4);
    put(22, static_cast<uint32_t>(side), 4);
    put(26, 1, 2);
    put(28, 24, 2);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const bool corner = x == 0 && y == side - 1; // bottom-up rows: the last is the top
            const size_t at = 54 + static_cast<size_t>(y * stride + 3 * x);
            bytes[at] = corner ? 0 : GetBValue(colour);
            bytes[at + 1] = corner ? 0 : GetGValue(colour);
            bytes[at + 2] = corner ? 0 : GetRValue(colour);
        }
    return bytes;
}

ZelPicHandle Picture(const std::vector<uint8_t> &bmp) {
    return ZelPicLoad(PIC_FormatBitmap | PIC_LoadMemory, reinterpret_cast<const wchar_t *>(bmp.data()), L"");
}

TEST(HeaderListImages, AddedInStepAndShownInTheirRows) {
    FormList l({L"Name"});
    const auto large = Bmp(32, RGB(255, 0, 0)), small = Bmp(16, RGB(255, 0, 0));
    const ZelPicHandle big = Picture(large), little = Picture(small);
    ASSERT_NE(big, 0);
    EXPECT_EQ(ZelLVImageAdd(l.list(), big, little), 1) << "after the default icon";
    EXPECT_EQ(ZelLVImageCountGet(l.list()), 2);
    l.Add({L"plain"}, 0);
    l.Add({L"red"}, 1);
    RECT icon{};
    ListView_GetItemRect(l.view(), 1, &icon, LVIR_ICON);
    const zkt::Bitmap shot = zkt::CaptureClient(l.view());
    RECT inside{icon.left, icon.top, icon.left + 16, icon.top + 16};
    EXPECT_GT(shot.count(RGB(255, 0, 0), inside), 200) << "the small image in its row";
    ListView_GetItemRect(l.view(), 0, &icon, LVIR_ICON);
    EXPECT_EQ(shot.count(RGB(255, 0, 0), icon), 0);

    EXPECT_EQ(ZelLVImageReplace(l.list(), 1, little, little), 1);
    EXPECT_EQ(ZelLVImageRemove(l.list(), 0), 1);
    EXPECT_EQ(ZelLVImageCountGet(l.list()), 1);
    EXPECT_EQ(ZelLVImageRemoveAll(l.list()), 1);
    EXPECT_EQ(ZelLVImageCountGet(l.list()), 0);
    ZelPicFree(big);
    ZelPicFree(little);
}

// A form whose design item holds a header list block; only the form's
// window is bound: the list inside it has no item of its own.
class StoredBlock : public testing::Test {
protected:
    void Store(const std::vector<uint8_t> &block) { ASSERT_TRUE(design.Store(L"ZK:HeaderListBox", block)); }

    zkt::StoredBlockItem design{L"ZK:cListView:10"};
    uint8_t *parameter = design.parameter;
};

TEST_F(StoredBlock, TheFormsListShowsItsBlock) {
    // Made here without the platform's lists: the stream forms are the
    // library's own, which the platform must read as its own.
    zk::hdr::SPropHeaderListBox block;
    block.columns.RemoveAll();
    block.columns.Add(std::make_unique<zk::hdr::SHdrLBColumn>(u"Code", LVCFMT_RIGHT, 60));
    block.columns.Add(std::make_unique<zk::hdr::SHdrLBColumn>(u"Name", LVCFMT_LEFT, 120));
    block.style = LVS_REPORT | LVS_SINGLESEL;
    block.backColour = RGB(250, 240, 200);
    block.sortColumn = 1;
    block.sortOrder = 1;
    Store(zkt::StoredBytes(block));
    FormList l({}, parameter);
    EXPECT_EQ(ZelLVGetStyle(l.list()) & 0xFFFF, LVS_REPORT | LVS_SINGLESEL);
    EXPECT_EQ(Header_GetItemCount(l.header()), 2);
    EXPECT_EQ(ZelLVGetBkColor(l.list()), static_cast<int32_t>(RGB(250, 240, 200)));
    HWND plain = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD, 0, 0, 10, 10, l.form, nullptr, nullptr, nullptr);
    EXPECT_EQ(ZelLVGetTextColor(l.list()), static_cast<int32_t>(SendMessageW(plain, LVM_GETTEXTCOLOR, 0, 0)))
        << "left as the view's own";
    DestroyWindow(plain);
    EXPECT_EQ(ZelLVGetSortColumn(l.list()), 1);
    EXPECT_EQ(ZelLVGetSortOrder(l.list()), 1);
    EXPECT_EQ(ZelLVImageCountGet(l.list()), 1) << "the stream's one image";

    // A block that does not read to its end is not applied.
    std::vector<uint8_t> cut = zkt::StoredBytes(block);
    cut.resize(cut.size() - 6);
    Store(cut);
    FormList defaults({}, parameter);
    EXPECT_EQ(ZelLVGetStyle(defaults.list()) & 0xFFFF, 0);
    EXPECT_EQ(Header_GetItemCount(defaults.header()), 1);
}

TEST(HeaderListImageStreams, ThePlatformsListsRoundTripThroughTheBlock) {
    const zk::hdr::ImageListOps own = zk::hdr::ImageOps();
    zk::hdr::BindImageListsToPlatform(); // this program's copy of the library's code
    {
        zk::hdr::SPropHeaderListBox block;
        ASSERT_NE(block.largeImages.Handle(), nullptr);
        EXPECT_EQ(block.largeImages.GetImageCount(), 1) << "the system's logo";
        const std::vector<uint8_t> once = zkt::StoredBytes(block);
        zk::hdr::SPropHeaderListBox back;
        EXPECT_TRUE(zk::LoadBlockBytes(once.data(), once.size(), back));
        EXPECT_EQ(back.smallImages.GetImageCount(), 1);
        EXPECT_EQ(zkt::StoredBytes(back), once);
        int cx = 0, cy = 0;
        ImageList_GetIconSize(static_cast<HIMAGELIST>(back.largeImages.Handle()), &cx, &cy);
        EXPECT_EQ(cx, GetSystemMetrics(SM_CXICON));
        zk::hdr::SPropHeaderListBox copy;
        copy = back;
        EXPECT_EQ(zkt::StoredBytes(copy).size(), once.size()) << "the icons copied into lists of the same sizes";
    } // the platform's lists go while the platform's operations are bound
    zk::hdr::BindImageOps(own);
}

} // namespace
