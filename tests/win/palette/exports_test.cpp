// The exports as the host calls them: every one with a null control, host
// arrays in and out, the menu's index rules and words, and no host value
// left behind.
#include <string>

#include "array_support.h"
#include "palette_support.h"

namespace {

using paltest::FormPalette;

std::vector<zkt::NullControlCall> Rows() {
    const ZelPalControl none = 0;
    return {
        {L"ZelPalColorGet()", -1, L"Unable to retrieve color for specified role.",
         [=] { return ZelPalColorGet(none, 1); }},
        {L"ZelPalColorSet()", -1, L"Unable to assign color to specified role.",
         [=] { return ZelPalColorSet(none, 1, 0); }},
        {L"ZelPalColorMainSet()", -1, L"Unable to assign palette color.",
         [=] { return ZelPalColorMainSet(none, 0, 0); }},
        {L"ZelPalColorMainSetAll()", -1, L"Unable to assign all palette colors.",
         [=] { return ZelPalColorMainSetAll(none, 0); }},
        {L"ZelPalColorPaletteGet()", -1, L"Unable to retrieve palette color.",
         [=] { return ZelPalColorPaletteGet(none, 0, 0); }},
        {L"ZelPalColorPaletteGetAll()", -1, L"Unable to retrieve all palette colors.",
         [=] { return ZelPalColorPaletteGetAll(none, 0, 0); }},
        {L"ZelPalFocusGet()", 0, L"Unable to retrieve current focus.",
         [=] { return ZelPalFocusGet(none, nullptr, nullptr); }},
        {L"ZelPalFocusSet()", 0, L"Unable to assign new focus.", [=] { return ZelPalFocusSet(none, 0, 0); }},
        {L"ZelPalMenuAdd()", -1, L"Unable to add menu item.", [=] { return ZelPalMenuAdd(none, L"x", 1); }},
        {L"ZelPalMenuClear()", 0, L"Unable to clear menu list.", [=] { return ZelPalMenuClear(none); }},
        {L"ZelPalMenuGet()", 0, L"Unable to retrieve menu item.",
         [=] { return ZelPalMenuGet(none, 0, nullptr, nullptr); }},
        {L"ZelPalMenuGetAll()", 0, L"Unable to retrieve menu list.", [=] { return ZelPalMenuGetAll(none, 0, 0); }},
        {L"ZelPalMenuInsert()", 0, L"Unable to insert menu item.", [=] { return ZelPalMenuInsert(none, 0, L"x", 1); }},
        {L"ZelPalMenuRemove()", 0, L"Unable to remove menu item.", [=] { return ZelPalMenuRemove(none, 0); }},
        {L"ZelPalMenuSet()", 0, L"Unable to assign menu item.", [=] { return ZelPalMenuSet(none, 0, L"x", 1); }},
        {L"ZelPalMenuSetAll()", 0, L"Unable to assign menu list.", [=] { return ZelPalMenuSetAll(none, 0, 0); }},
        {L"ZelPalMRUClear()", 0, L"Unable to clear most recently used palette.", [=] { return ZelPalMRUClear(none); }},
        {L"ZelPalMRUMaxGet()", -1, L"Unable to retrieve most recently used palette maximum.",
         [=] { return ZelPalMRUMaxGet(none); }},
        {L"ZelPalMRUMaxSet()", -1, L"Unable to assign most recently used palette maximum.",
         [=] { return ZelPalMRUMaxSet(none, 4); }},
        {L"ZelPalStyleGet()", 0, L"Unable to retrieve style bits.", [=] { return ZelPalStyleGet(none); }},
        {L"ZelPalStyleSet()", 0, L"Unable to assign style bits.", [=] { return ZelPalStyleSet(none, 1, 1); }},
    };
}

TEST(PaletteNullControl, EveryExportShowsStringFortyEightAndFails) {
    const auto rows = Rows();
    ASSERT_EQ(rows.size(), 21u);
    zkt::ExpectNullControlFailures(rows);
}

// Every test gets a form palette and must leave no host string or array
// behind (the fixture checks once the palette is gone).
class PaletteExports : public arraytest::ArrayTest {
protected:
    void SetUp() override {
        ArrayTest::SetUp();
        palette = std::make_unique<FormPalette>();
        control = palette->control();
        ASSERT_NE(control, 0);
    }
    void TearDown() override {
        palette.reset();
        ArrayTest::TearDown();
    }

    std::unique_ptr<FormPalette> palette;
    ZelPalControl control = 0;
};

TEST_F(PaletteExports, MainColoursGoInAsNumbersAndComeOutAgain) {
    const HostArray in = Own(arraytest::Longs({0x0000FF, 0xFFFFFF, 0x123456}));
    EXPECT_EQ(ZelPalColorMainSetAll(control, in), 3);
    EXPECT_EQ(ZelPalColorPaletteGet(control, PALP_Main, 2), 0x123456);
    EXPECT_EQ(ZelPalColorPaletteGet(control, PALP_Main, 3), -1);
    EXPECT_EQ(palette->layout().Main().Height(), palette->layout().MainCellHeight() - 1) << "laid out again: one row";
    EXPECT_EQ(ZelPalColorMainSet(control, 13, 0xABCDEF), -1) << "ten beyond the end: appended";
    EXPECT_EQ(ZelPalColorMainSet(control, 3, 0x010101), 0xABCDEF);
    const HostArray out = Own(HostArrayCreate(HOST_TYPE_NUMBER));
    EXPECT_EQ(ZelPalColorPaletteGetAll(control, PALP_Main, out), 4);
    EXPECT_EQ(arraytest::LongsOf(out), (std::vector<int32_t>{0x0000FF, 0xFFFFFF, 0x123456, 0x010101}));
    // An empty palette leaves the array as it was.
    EXPECT_EQ(ZelPalColorPaletteGetAll(control, PALP_Recent, out), 0);
    EXPECT_EQ(arraytest::BoundsOf(out).high, 3);
    // A bound below 0 empties the grid; an array the host does not know changes nothing.
    const HostArray empty = Own(HostArrayCreate(HOST_TYPE_NUMBER));
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(ZelPalColorMainSetAll(control, 0x7FFF0000), -1);
    EXPECT_EQ(capture.text(), L"ZelPalColorMainSetAll() - Unable to assign all palette colors.\n");
    EXPECT_EQ(ZelPalColorPaletteGet(control, PALP_Main, 0), 0x0000FF);
    EXPECT_EQ(ZelPalColorMainSetAll(control, empty), 0);
    EXPECT_EQ(ZelPalColorPaletteGet(control, PALP_Main, 0), -1);
}

TEST_F(PaletteExports, MenuEntriesRoundTripAndTheOtherColourEntryIsNotTheApplications) {
    EXPECT_EQ(ZelPalMenuAdd(control, L"Automatic", 100), 0);
    EXPECT_EQ(ZelPalMenuInsert(control, 0, L"None", 101), 1);
    EXPECT_EQ(ZelPalMenuSet(control, 5, L"Last", 102), 1) << "capped at the count";
    HostStr text = 0;
    uint16_t id = 0;
    EXPECT_EQ(ZelPalMenuGet(control, 1, &text, &id), 1);
    int32_t size = 0;
    EXPECT_STREQ(HostStrLock(text, &size), L"Automatic");
    EXPECT_EQ(size, 2 * 9 + 2);
    EXPECT_EQ(id, 100);
    ZkHostStrRelease(text);
    zkt::DebugOutputCapture capture;
    HostStr none = 0;
    EXPECT_EQ(ZelPalMenuGet(control, 3, &none, &id), 0) << "where Other Color... shows";
    EXPECT_EQ(none, 0u);
    EXPECT_EQ(capture.text(), L"ZelPalMenuGet() - Unable to retrieve menu item.\n");
    const HostArray texts = Own(HostArrayCreate(HOST_TYPE_STRING)), ids = Own(HostArrayCreate(HOST_TYPE_NUMBER));
    EXPECT_EQ(ZelPalMenuGetAll(control, texts, ids), 3);
    EXPECT_EQ(arraytest::TextsOf(texts), (std::vector<std::wstring>{L"None", L"Automatic", L"Last"}));
    EXPECT_EQ(arraytest::LongsOf(ids), (std::vector<int32_t>{101, 100, 102}));
    EXPECT_EQ(ZelPalMenuRemove(control, 3), 0);
    EXPECT_EQ(ZelPalMenuRemove(control, 0), 1);
    EXPECT_EQ(ZelPalMenuClear(control), 1);
    EXPECT_EQ(ZelPalMenuSetAll(control, texts, ids), 3);
    EXPECT_EQ(palette->object().Model().MenuCount(), 3);
}

TEST_F(PaletteExports, MenuListsOfDifferentBoundsChangeNothing) {
    ZelPalMenuAdd(control, L"Keep", 1);
    const HostArray texts = Own(arraytest::Strings({L"a", L"b"})), ids = Own(arraytest::Longs({1, 2, 3}));
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(ZelPalMenuSetAll(control, texts, ids), 0);
    EXPECT_EQ(capture.text(), L"ZelPalMenuSetAll() - Unable to assign menu list.\n");
    ASSERT_EQ(palette->object().Model().MenuCount(), 1);
    EXPECT_EQ(palette->object().Model().GetMenu(0)->text, u"Keep");
}

TEST_F(PaletteExports, OldValuesComeBackAndBadArgumentsAreTraced) {
    EXPECT_EQ(ZelPalMRUMaxSet(control, 300), 8);
    EXPECT_EQ(ZelPalMRUMaxGet(control), 255);
    EXPECT_EQ(ZelPalStyleSet(control, PALS_KeepSelection, 1), PALS_EnableRecent);
    EXPECT_EQ(ZelPalColorSet(control, PALR_FocusOuter, RGB(1, 2, 3)),
              static_cast<int32_t>(GetSysColor(COLOR_HIGHLIGHT)));
    EXPECT_EQ(ZelPalColorGet(control, 12), -1) << "no trace: a plain answer";
    EXPECT_EQ(ZelPalFocusSet(control, PALZ_Recent, 0), 1) << "an empty zone: nothing happens";
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(ZelPalFocusGet(control, nullptr, nullptr), 0);
    EXPECT_EQ(capture.text(), L"ZelPalFocusGet() - Unable to retrieve current focus.\n");
}

} // namespace
