// The calendar's classes, its creation on a form, the property block a
// form's calendar loads, and the size that fits the month.
#include "ctl_support.h"

#include <cstring>

#include "block_bytes.h"

namespace {

using ctltest::FormCalendar;
using ctltest::Ymd;

TEST(CalendarClass, TheFormsClassIsRegisteredAsTheLibraryLoads) {
    const HINSTANCE library = GetModuleHandleW(L"ZKLIB.dll");
    WNDCLASSEXW wc{};
    wc.cbSize = sizeof wc;
    ASSERT_TRUE(GetClassInfoExW(library, L"ZK:cCalendar:10", &wc)) << "registered as the library loads";
    EXPECT_EQ(wc.style, 0x6880u);
    EXPECT_EQ(wc.hbrBackground, nullptr);
    EXPECT_NE(wc.hCursor, nullptr);
}

TEST(CalendarCreation, TheAnnouncedPointerIsTheControlShowingToday) {
    FormCalendar c;
    ASSERT_NE(c.control(), 0);
    EXPECT_EQ(ZelCalGetStyle(c.control()), 0x03CC) << "buttons, keyboard, extra, special, show extra, focus";
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 15}));
    EXPECT_EQ(c.FocusCell(), 19);
    EXPECT_EQ(c.object().Model().DisplayMonth(), 3);
    EXPECT_EQ(ZelCalIsDateMarked(c.control(), ctltest::Date(2024, 3, 15)), 1) << "the focus date is the mark";
    RECT client{};
    GetClientRect(c.hwnd(), &client);
    EXPECT_EQ(c.layout().Client().right, client.right) << "laid out for its own client area";
    EXPECT_GE(c.layout().CellWidth(), 240 / 7 - 1);
}

TEST(CalendarCreation, AutoSizeFitsTheWindowToTheMonthWhenTheFontChanges) {
    FormCalendar c;
    ZelCalSetStyle(c.control(), CALS_AutoSize, 1);
    SendMessageW(c.hwnd(), WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
    RECT window{};
    GetWindowRect(c.hwnd(), &window);
    const auto &l = c.layout();
    EXPECT_EQ(window.right - window.left, 7 * l.CellWidth() + 8);
    EXPECT_EQ(window.bottom - window.top, 8 * l.CellHeight() + 9);
    EXPECT_EQ(l.Client().right, window.right - window.left) << "the layout follows the new size";
}

// A form whose design item holds a calendar block.
class StoredBlock : public testing::Test {
protected:
    void Store(zk::SPropCalendar &block, uint32_t calendarVersion = 2) {
        std::vector<uint8_t> bytes = zkt::StoredBytes(block);
        std::memcpy(bytes.data() + 10, &calendarVersion, 4); // after the generic part
        if (calendarVersion == 1)
            bytes.pop_back(); // a version 1 writer had no alternateButtons
        ASSERT_TRUE(design.Store(L"ZK:Calendar", bytes));
    }

    zkt::StoredBlockItem design;
    const HostOutline outline = design.outline;
    const HostItem item = design.item;
    uint8_t *parameter = design.parameter;
};

TEST_F(StoredBlock, VersionTwoAppliesEveryField) {
    zk::SPropCalendar block;
    block.style5 = 1; // Multiple Selection
    block.etchedLook = 1;
    block.showGridlines = 1;
    block.alternateButtons = 1;
    block.showExtra = 0;
    block.initialDateMode = 1;
    block.initialDate = u"2024-02-29";
    Store(block);
    FormCalendar c({10, 10, 240, 180}, parameter);
    const int32_t style = ZelCalGetStyle(c.control());
    EXPECT_EQ(style & (CALS_MultipleSelection | CALS_EtchedLook | CALS_ShowGridlines | CALS_AlternateButtons),
              CALS_MultipleSelection | CALS_EtchedLook | CALS_ShowGridlines | CALS_AlternateButtons);
    EXPECT_EQ(style & CALS_ShowExtra, 0);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 2, 29})) << "the static initial date";
    EXPECT_EQ(c.object().Model().DisplayMonth(), 2);
}

TEST_F(StoredBlock, VersionOneLacksAlternateButtonsAndABadDateStaysToday) {
    zk::SPropCalendar block;
    block.alternateButtons = 1;
    block.showSpecial = 1;
    block.initialDateMode = 1;
    block.initialDate = u"no date at all";
    Store(block, 1);
    FormCalendar c({10, 10, 240, 180}, parameter);
    const int32_t style = ZelCalGetStyle(c.control());
    EXPECT_EQ(style & CALS_AlternateButtons, 0);
    EXPECT_EQ(style & CALS_ShowSpecial, CALS_ShowSpecial);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 15}));
}

TEST_F(StoredBlock, VersionZeroAShortBlockOrNoStoredFlagKeepTheDefaults) {
    zk::SPropCalendar block;
    block.etchedLook = 1;
    Store(block, 0);
    {
        FormCalendar c({10, 10, 240, 180}, parameter);
        EXPECT_EQ(ZelCalGetStyle(c.control()), 0x03CC);
    }
    const uint8_t shortBlock[] = {1, 0, 0, 0, 1, 1, 0, 0};
    ASSERT_EQ(HostPropSet(outline, item, L"ZK:Calendar", shortBlock, sizeof shortBlock), 1);
    {
        FormCalendar c({10, 10, 240, 180}, parameter);
        EXPECT_EQ(ZelCalGetStyle(c.control()), 0x03CC) << "a block that does not read to its end is not applied";
    }
    Store(block);
    parameter[4] = 0;
    FormCalendar c({10, 10, 240, 180}, parameter);
    EXPECT_EQ(ZelCalGetStyle(c.control()) & CALS_EtchedLook, 0) << "without the stored flag nothing is read";
}

} // namespace
