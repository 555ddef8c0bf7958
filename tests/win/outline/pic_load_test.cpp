// ZelPicLoad from every source, and ZelPicFree.
#include <gtest/gtest.h>

#include "pic_support.h"
#include "zkhostctl.h"
#include "zkt_debug_output.h"

using namespace pictest;

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);

struct Loaded {
    ZelPicHandle handle;
    explicit Loaded(ZelPicHandle h) : handle(h) {}
    ~Loaded() {
        if (handle)
            ZelPicFree(handle);
    }
    PIC *operator->() const { return Pic(handle); }
};

// Width and height of a loaded picture; none if it did not load.
std::pair<int32_t, int32_t> Size(const Loaded &p) {
    return p.handle ? std::pair(p->width, p->height) : std::pair(-1, -1);
}

TEST(PicLoad, ModuleBitmapGetsAMaskFromItsTopLeftPixel) {
    Loaded p(ZelPicLoad(0x8201, L"ZKLIB.dll", L"plusdk"));
    ASSERT_NE(p.handle, 0);
    EXPECT_EQ(p->type, PIC_TypeBitmap);
    EXPECT_EQ(Size(p), std::pair(16, 16));
    EXPECT_EQ(p->flags, 0x8201);
    EXPECT_EQ(p->source, L"ZKLIB.dll");
    EXPECT_EQ(p->name, L"plusdk");
    ASSERT_NE(p->mask, nullptr);
    // Set where the picture has the top-left colour: transparent there.
    EXPECT_EQ(BitmapPixel(p->mask, 0, 0), kWhite);
    EXPECT_EQ(BitmapPixel(p->mask, 15, 15), kWhite);
    EXPECT_EQ(BitmapPixel(p->mask, 3, 3), kBlack);   // the box's frame
    EXPECT_EQ(BitmapPixel(p->mask, 4, 4), kBlack);   // its white inside is opaque too
    EXPECT_EQ(BitmapPixel(p->bitmap, 7, 7), kBlack); // the plus
    EXPECT_EQ(BitmapPixel(p->bitmap, 4, 4), kWhite);
}

TEST(PicLoad, ExtensionOfTheModuleNameAddsTheSource) {
    Loaded p(ZelPicLoad(PIC_FormatBitmap, L"zklib.DLL", L"fdr"));
    ASSERT_NE(p.handle, 0);
    EXPECT_EQ(p->flags, PIC_FormatBitmap | PIC_LoadModule);
    EXPECT_EQ(p->type, PIC_TypeBitmap);
}

TEST(PicLoad, ScalingToTheAskedSize) {
    Loaded natural(ZelPicLoad(0x0201, L"ZKLIB.dll", L"IDB_PATTERNGRAY"));
    EXPECT_EQ(Size(natural), std::pair(8, 8));
    Loaded small(ZelPicLoad(PIC_SizeSmall | PIC_SizeLarge | 0x0201, L"ZKLIB.dll", L"IDB_PATTERNGRAY"));
    ASSERT_EQ(Size(small), std::pair(16, 16));
    BITMAP bits{};
    GetObjectW(small->bitmap, sizeof(bits), &bits);
    EXPECT_EQ(bits.bmWidth, 16);
    Loaded large(ZelPicLoad(PIC_SizeLarge | 0x0201, L"ZKLIB.dll", L"fdr"));
    ASSERT_EQ(Size(large), std::pair(GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)));
    EXPECT_NE(large->mask, nullptr);
}

TEST(PicLoad, ModuleFailures) {
    EXPECT_EQ(ZelPicLoad(0x0201, L"ZKLIB.dll", L"NOSUCHBITMAP"), 0);
    EXPECT_EQ(ZelPicLoad(0x0201, L"nosuchmodule.dll", L"fdr"), 0);
    EXPECT_EQ(ZelPicLoad(0x0202, L"ZKLIB.dll", L"NOSUCHICON"), 0);
    zkt::DebugOutputCapture debug;
    EXPECT_EQ(ZelPicLoad(PIC_LoadModule, L"ZKLIB.dll", L"fdr"), 0);
    const auto lines = debug.lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0], L"ZKLIB.dll - Unable to load image because no format (PIC_FormatBitmap/PIC_FormatIcon) "
                        L"was specified.");
}

TEST(PicLoad, ModuleIconsByNameAndByIndex) {
    Loaded named(ZelPicLoad(0x0202, L"ZKLIB.dll", L"ZK"));
    ASSERT_NE(named.handle, 0);
    EXPECT_EQ(named->type, PIC_TypeIcon);
    EXPECT_NE(named->icon, nullptr);
    EXPECT_EQ(named->width, GetSystemMetrics(SM_CXICON));
    Loaded small(ZelPicLoad(PIC_SizeSmall | 0x0202, L"ZKLIB.dll", L"ZK"));
    EXPECT_EQ(Size(small), std::pair(16, 16));
    Loaded first(ZelPicLoad(0x0202, L"ZKLIB.dll", L"#0"));
    ASSERT_NE(first.handle, 0);
    EXPECT_EQ(first->type, PIC_TypeIcon);
    Loaded empty(ZelPicLoad(0x0202, L"ZKLIB.dll", L""));
    EXPECT_NE(empty.handle, 0);
    // The library holds one icon: a fourth cannot be extracted.
    EXPECT_EQ(ZelPicLoad(0x0202, L"ZKLIB.dll", L"#3"), 0);
}

TEST(PicLoad, BitmapFilesPaintOpaque) {
    TempFile file(L"zk_pic_test.bmp", Bmp24(5, 3, [](int x, int) { return x ? RGB(0, 0, 255) : RGB(9, 9, 9); }));
    Loaded p(ZelPicLoad(0, file.path().c_str(), L"ignored"));
    ASSERT_NE(p.handle, 0);
    EXPECT_EQ(p->type, PIC_TypeBitmap);
    EXPECT_EQ(p->flags, PIC_LoadFile | PIC_FormatBitmap);
    EXPECT_EQ(Size(p), std::pair(5, 3));
    EXPECT_EQ(p->mask, nullptr);
    EXPECT_EQ(BitmapPixel(p->bitmap, 1, 1), RGB(0, 0, 255));
    EXPECT_EQ(Size(Loaded(ZelPicLoad(PIC_SizeSmall, file.path().c_str(), L""))), std::pair(16, 16));
    EXPECT_EQ(ZelPicLoad(0, L"c:\\no\\such\\file.bmp", L""), 0);
}

TEST(PicLoad, IconFilesTakeTheirSizeFromTheHotSpot) {
    TempFile file(L"zk_pic_test.ico", Ico32(32, RGB(0, 128, 0)));
    Loaded p(ZelPicLoad(0, file.path().c_str(), L""));
    ASSERT_NE(p.handle, 0);
    EXPECT_EQ(p->type, PIC_TypeIcon);
    EXPECT_EQ(Size(p), std::pair(32, 32));
    EXPECT_EQ(Size(Loaded(ZelPicLoad(PIC_SizeSmall, file.path().c_str(), L""))).first, 16);
}

TEST(PicLoad, NamesThatReadAsNothingGiveTheEmptyPicture) {
    TempFile file(L"zk_pic.test.bmp", Bmp24(2, 2, [](int, int) { return RGB(1, 2, 3); }));
    Loaded twoDots(ZelPicLoad(PIC_LoadFile, file.path().c_str(), L""));
    ASSERT_NE(twoDots.handle, 0); // ".test.bmp" is no extension the rules know
    EXPECT_EQ(twoDots->type, PIC_TypeEmpty);
    EXPECT_EQ(twoDots->bitmap, nullptr);
    Loaded text(ZelPicLoad(PIC_LoadFile | PIC_FormatBitmap, L"notes.txt", L""));
    ASSERT_NE(text.handle, 0);
    EXPECT_EQ(text->type, PIC_TypeEmpty);
    Loaded nothing(ZelPicLoad(PIC_FormatIcon | PIC_SizeSmall, L"abc", L"def"));
    ASSERT_NE(nothing.handle, 0);
    EXPECT_EQ(nothing->type, PIC_TypeEmpty);
    EXPECT_EQ(nothing->flags, PIC_FormatIcon | PIC_SizeSmall);
}

TEST(PicLoad, BitmapFromMemory) {
    const Bytes bmp = Bmp24(6, 4, [](int x, int y) { return x == 0 && y == 0 ? RGB(255, 0, 255) : RGB(0, 0, 128); });
    Loaded p(ZelPicLoad(PIC_LoadMemory | PIC_FormatBitmap, reinterpret_cast<const wchar_t *>(bmp.data()), L""));
    ASSERT_NE(p.handle, 0);
    EXPECT_EQ(p->type, PIC_TypeBitmap);
    EXPECT_EQ(Size(p), std::pair(6, 4));
    ASSERT_NE(p->mask, nullptr);
    EXPECT_EQ(BitmapPixel(p->mask, 0, 0), kWhite);
    EXPECT_EQ(BitmapPixel(p->mask, 1, 0), kBlack);
    EXPECT_EQ(BitmapPixel(p->bitmap, 3, 3), RGB(0, 0, 128));
    const Loaded small(ZelPicLoad(PIC_LoadMemory | PIC_FormatBitmap | PIC_SizeSmall,
                                  reinterpret_cast<const wchar_t *>(bmp.data()), L""));
    EXPECT_EQ(Size(small).first, 16);
    // No format bit: the trace names what reads as the source.
    zkt::DebugOutputCapture debug;
    EXPECT_EQ(ZelPicLoad(PIC_LoadMemory, reinterpret_cast<const wchar_t *>(bmp.data()), L""), 0);
    EXPECT_EQ(debug.calls(), 4u);
}

TEST(PicLoad, MemoryIsReadNoFurtherThanItGoes) {
    // An image at the very end of a readable page whose header claims
    // more: refused, without a fault.
    SYSTEM_INFO system{};
    GetSystemInfo(&system);
    auto *pages = static_cast<uint8_t *>(VirtualAlloc(nullptr, 2 * system.dwPageSize, MEM_RESERVE, PAGE_NOACCESS));
    ASSERT_NE(pages, nullptr);
    ASSERT_NE(VirtualAlloc(pages, system.dwPageSize, MEM_COMMIT, PAGE_READWRITE), nullptr);
    const Bytes bmp = Bmp24(8, 8, [](int, int) { return RGB(10, 20, 30); });
    uint8_t *end = pages + system.dwPageSize;
    uint8_t *at = end - bmp.size();
    memcpy(at, bmp.data(), bmp.size());
    const auto *source = reinterpret_cast<const wchar_t *>(at);
    Loaded fits(ZelPicLoad(PIC_LoadMemory | PIC_FormatBitmap, source, L""));
    EXPECT_NE(fits.handle, 0);
    // The same header, its rows cut off by the end of the page.
    uint8_t *cut = end - 60;
    memcpy(cut, bmp.data(), 60);
    EXPECT_EQ(ZelPicLoad(PIC_LoadMemory | PIC_FormatBitmap, reinterpret_cast<const wchar_t *>(cut), L""), 0);
    // A declared file size of zero: the rows are measured from the headers.
    cut[2] = cut[3] = cut[4] = cut[5] = 0;
    EXPECT_EQ(ZelPicLoad(PIC_LoadMemory | PIC_FormatBitmap, reinterpret_cast<const wchar_t *>(cut), L""), 0);
    const Bytes ico = Ico32(16, RGB(1, 1, 1));
    uint8_t *icoCut = end - 40;
    memcpy(icoCut, ico.data(), 40);
    EXPECT_EQ(ZelPicLoad(PIC_LoadMemory | PIC_FormatIcon, reinterpret_cast<const wchar_t *>(icoCut), L""), 0);
    VirtualFree(pages, 0, MEM_RELEASE);
}

TEST(PicLoad, IconFromMemory) {
    const Bytes ico = Ico32(16, RGB(200, 0, 0));
    Loaded p(ZelPicLoad(PIC_LoadMemory | PIC_FormatIcon, reinterpret_cast<const wchar_t *>(ico.data()), L""));
    ASSERT_NE(p.handle, 0);
    EXPECT_EQ(p->type, PIC_TypeMemoryIcon);
    // Without a size bit an icon from memory takes the system icon size.
    EXPECT_EQ(Size(p), std::pair(GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)));
    const Loaded small(ZelPicLoad(PIC_LoadMemory | PIC_FormatIcon | PIC_SizeSmall,
                                  reinterpret_cast<const wchar_t *>(ico.data()), L""));
    EXPECT_EQ(Size(small).first, 16);
    Bytes lying = ico;
    lying[38] = 1; // the image claims to be compressed
    EXPECT_EQ(ZelPicLoad(PIC_LoadMemory | PIC_FormatIcon, reinterpret_cast<const wchar_t *>(lying.data()), L""), 0);
}

TEST(PicLoad, HostResources) {
    const Bytes bmp = Bmp24(3, 3, [](int x, int) { return x ? RGB(0, 255, 0) : RGB(255, 255, 255); });
    ASSERT_EQ(ZkHostResourceAdd(L"ZKPICTEST", bmp.data(), static_cast<int32_t>(bmp.size())), 1);
    Loaded p(ZelPicLoad(PIC_LoadResource | PIC_FormatBitmap, L"ZKPICTEST", L""));
    ASSERT_NE(p.handle, 0);
    EXPECT_EQ(p->type, PIC_TypeBitmap);
    EXPECT_EQ(p->width, 3);
    EXPECT_EQ(p->source, L"ZKPICTEST");
    const Bytes ico = Ico32(32, RGB(0, 0, 200));
    ASSERT_EQ(ZkHostResourceAdd(L"ZKICOTEST", ico.data(), static_cast<int32_t>(ico.size())), 1);
    Loaded i(ZelPicLoad(PIC_LoadResource | PIC_FormatIcon, L"ZKICOTEST", L""));
    ASSERT_NE(i.handle, 0);
    EXPECT_EQ(i->type, PIC_TypeMemoryIcon);
    EXPECT_EQ(ZelPicLoad(PIC_LoadResource | PIC_FormatBitmap, L"ZKNOSUCH", L""), 0);
    // The bitmap's header claims more rows than the resource holds.
    Bytes lying = bmp;
    lying[22] = 40;
    ASSERT_EQ(ZkHostResourceAdd(L"ZKLYING", lying.data(), static_cast<int32_t>(lying.size())), 1);
    EXPECT_EQ(ZelPicLoad(PIC_LoadResource | PIC_FormatBitmap, L"ZKLYING", L""), 0);
    ASSERT_EQ(ZkHostResourceAdd(L"ZKSHORT", bmp.data(), 20), 1);
    EXPECT_EQ(ZelPicLoad(PIC_LoadResource | PIC_FormatBitmap, L"ZKSHORT", L""), 0);
}

TEST(PicFree, LiveStaleNullAndForged) {
    const ZelPicHandle p = ZelPicLoad(0x8201, L"ZKLIB.dll", L"fdr");
    ASSERT_NE(p, 0);
    EXPECT_EQ(ZelPicFree(p), 0);
    EXPECT_EQ(ZelPicFree(p), ZEL_INVALID_PARAMETER); // stale
    EXPECT_EQ(ZelPicFree(0), ZEL_INVALID_PARAMETER);
    int local = 0;
    EXPECT_EQ(ZelPicFree(reinterpret_cast<ZelPicHandle>(&local)), ZEL_INVALID_PARAMETER);
    EXPECT_EQ(ZelPicFree(static_cast<ZelPicHandle>(0x10)), ZEL_INVALID_PARAMETER);
    // Icons of every kind go too.
    const ZelPicHandle icon = ZelPicLoad(0x0202, L"ZKLIB.dll", L"ZK");
    ASSERT_NE(icon, 0);
    EXPECT_EQ(ZelPicFree(icon), 0);
    const ZelPicHandle empty = ZelPicLoad(0, L"", L"");
    ASSERT_NE(empty, 0);
    EXPECT_EQ(ZelPicFree(empty), 0);
}

} // namespace
