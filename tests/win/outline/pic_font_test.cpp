// ZelFontLoad, ZelFontGet, ZelFontFree, ZelFontEnum.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace {

std::wstring Text(HostStr s) {
    int32_t size = 0;
    const wchar_t *t = HostStrLock(s, &size);
    return t ? std::wstring(t) : std::wstring(L"<null>");
}

struct Facts {
    std::wstring face;
    int32_t points = -1;
    uint16_t style = 0xFFFF;
};

bool Get(HFONT font, Facts &facts) {
    HostStr face = 0;
    if (!ZelFontGet(font, &face, &facts.points, &facts.style))
        return false;
    facts.face = Text(face);
    ZkHostStrRelease(face);
    return true;
}

TEST(Fonts, LoadAndReadBack) {
    struct Case {
        int32_t points;
        uint32_t style;
    } cases[] = {{10, 0}, {10, FONT_Bold}, {12, FONT_Italic | FONT_Underline}, {8, FONT_StrikeOut | FONT_Bold}};
    for (const Case &c : cases) {
        HFONT font = ZelFontLoad(L"Tahoma", c.points, c.style);
        ASSERT_NE(font, nullptr);
        Facts facts;
        ASSERT_TRUE(Get(font, facts));
        EXPECT_EQ(facts.face, L"Tahoma");
        EXPECT_EQ(facts.points, c.points);
        EXPECT_EQ(facts.style, c.style);
        LOGFONTW logical{};
        GetObjectW(font, sizeof(logical), &logical);
        HDC dc = GetDC(nullptr);
        EXPECT_EQ(logical.lfHeight, -MulDiv(c.points, GetDeviceCaps(dc, LOGPIXELSY), 72));
        ReleaseDC(nullptr, dc);
        EXPECT_EQ(logical.lfWeight, (c.style & FONT_Bold) ? 700 : 400);
        EXPECT_EQ(logical.lfCharSet, 0); // an English system
        EXPECT_EQ(ZelFontFree(font), 1);
    }
}

TEST(Fonts, FaceNamesBelowThirtyTwoCharacters) {
    const std::wstring face31(31, L'A');
    HFONT font = ZelFontLoad(face31.c_str(), 9, 0);
    EXPECT_NE(font, nullptr);
    ZelFontFree(font);
    EXPECT_EQ(ZelFontLoad((face31 + L"A").c_str(), 9, 0), nullptr);
    EXPECT_EQ(ZelFontLoad(nullptr, 9, 0), nullptr);
}

TEST(Fonts, ReadingFailsWithoutAFontOrASlot) {
    Facts facts;
    EXPECT_FALSE(Get(nullptr, facts));
    HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    EXPECT_FALSE(Get(reinterpret_cast<HFONT>(brush), facts));
    DeleteObject(brush);
    HFONT font = ZelFontLoad(L"Tahoma", 10, 0);
    int32_t points = 0;
    uint16_t style = 0;
    HostStr face = 0;
    EXPECT_EQ(ZelFontGet(font, nullptr, &points, &style), 0);
    EXPECT_EQ(ZelFontGet(font, &face, nullptr, &style), 0);
    EXPECT_EQ(ZelFontGet(font, &face, &points, nullptr), 0);
    EXPECT_EQ(face, 0u);
    ZelFontFree(font);
    EXPECT_EQ(ZelFontFree(nullptr), 1);
}

struct Enumerated {
    int32_t count = 0;
    std::vector<std::wstring> names;
    std::vector<int32_t> types;
    int32_t low = -5, high = -5, typesHigh = -5;
};

Enumerated Enumerate(uint32_t selection, int prefill = 0) {
    Enumerated e;
    HostArray names = HostArrayCreate(HOST_TYPE_STRING);
    HostArray types = HostArrayCreate(HOST_TYPE_NUMBER);
    for (int i = 0; i < prefill; ++i) {
        HostArraySetString(names, ZkHostStrMake(L"old"), i);
        HostNumber n{};
        HostArraySetNumber(types, HostNumberFromLong(99, &n), i);
    }
    e.count = ZelFontEnum(selection, names, types);
    HostArrayGetBounds(names, &e.low, &e.high);
    int32_t low = 0;
    HostArrayGetBounds(types, &low, &e.typesHigh);
    for (int32_t i = 0; i < e.count; ++i) {
        HostStr s = 0;
        HostArrayGetString(names, &s, i);
        e.names.push_back(Text(s));
        HostNumber n{};
        HostArrayGetNumber(types, &n, i);
        int32_t v = -1;
        HostNumberToLong(&n, &v);
        e.types.push_back(v);
    }
    HostArrayDestroy(names);
    HostArrayDestroy(types);
    return e;
}

TEST(Fonts, EnumerateScreenFonts) {
    const Enumerated e = Enumerate(FONT_EnumScreen);
    ASSERT_GT(e.count, 0);
    EXPECT_EQ(e.low, 0);
    EXPECT_EQ(e.high, e.count - 1);
    EXPECT_EQ(e.typesHigh, e.count - 1);
    const std::set<std::wstring> unique(e.names.begin(), e.names.end());
    EXPECT_EQ(unique.size(), e.names.size()) << "a face is listed twice";
    bool tahoma = false;
    for (int32_t i = 0; i < e.count; ++i) {
        EXPECT_TRUE(e.types[i] == 0 || e.types[i] == 1 || e.types[i] == 2 || e.types[i] == 4) << e.types[i];
        if (e.names[i] == L"Tahoma") {
            tahoma = true;
            EXPECT_EQ(e.types[i], FONT_TypeTrueType);
        }
    }
    EXPECT_TRUE(tahoma);
}

TEST(Fonts, EnumerationReplacesWhatTheArraysHeld) {
    const Enumerated fresh = Enumerate(FONT_EnumScreen);
    const Enumerated over = Enumerate(FONT_EnumScreen, fresh.count + 50);
    EXPECT_EQ(over.count, fresh.count);
    EXPECT_EQ(over.high, fresh.count - 1);
    EXPECT_EQ(over.names, fresh.names);
    // Both passes: a face both know is listed once.
    const Enumerated both = Enumerate(FONT_EnumScreen | FONT_EnumPrinter);
    const std::set<std::wstring> unique(both.names.begin(), both.names.end());
    EXPECT_EQ(unique.size(), both.names.size());
    EXPECT_GE(both.count, fresh.count);
    const Enumerated none = Enumerate(0, 3);
    EXPECT_EQ(none.count, 0);
    EXPECT_EQ(none.high, -1);
}

} // namespace
