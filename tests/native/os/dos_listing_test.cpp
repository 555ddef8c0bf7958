// The listings' filters and the two-second DOS form of their dates.
#include <gtest/gtest.h>

#include "os/core/dos_listing.h"

using namespace zk::os;

namespace {

constexpr uint32_t kReadOnly = 0x1, kHidden = 0x2, kSystem = 0x4, kDir = 0x10, kArchive = 0x20;

TEST(ListingFilters, FoldersWithoutTheirLinks) {
    EXPECT_TRUE(TakesDirectory(u"...", kDir | kHidden));
    EXPECT_TRUE(TakesDirectory(u".git", kDir));
    EXPECT_FALSE(TakesDirectory(u".", kDir));
    EXPECT_FALSE(TakesDirectory(u"..", kDir));
    EXPECT_FALSE(TakesDirectory(u"file.txt", kArchive));
}

TEST(ListingFilters, PlainListingWantsEveryMaskBitDetailedAny) {
    const struct {
        uint32_t mask, attributes;
        bool plain, detailed;
    } cases[] = {
        {0, kArchive, true, true},
        {0, kReadOnly, true, true},
        {0, kHidden, false, true},
        {0, kSystem | kArchive, false, true},
        {0, kDir, false, false},
        {kHidden | kSystem, kHidden | kSystem | kArchive, true, true},
        {kHidden | kSystem, kHidden, false, true},
        {kHidden | kSystem, kArchive | kReadOnly, false, false},
        {kHidden | kSystem, kDir | kHidden, false, false},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << "mask " << c.mask << " attributes " << c.attributes);
        EXPECT_EQ(c.plain, TakesFile(c.mask, c.attributes));
        EXPECT_EQ(c.detailed, TakesFileInfo(c.mask, c.attributes));
    }
}

TEST(ListingTime, OddSecondsGoDownAndYearsOutsideTheFormGo) {
    EXPECT_EQ((CivilTime{2024, 2, 29, 13, 45, 58}), ListingTime({2024, 2, 29, 13, 45, 59}));
    EXPECT_EQ((CivilTime{1980, 1, 1, 0, 0, 0}), ListingTime({1980, 1, 1, 0, 0, 1}));
    EXPECT_EQ((CivilTime{2107, 12, 31, 23, 59, 58}), ListingTime({2107, 12, 31, 23, 59, 59}));
    EXPECT_FALSE(ListingTime({1979, 12, 31, 23, 59, 59}).has_value());
    EXPECT_FALSE(ListingTime({2108, 1, 1, 0, 0, 0}).has_value());
    EXPECT_FALSE(ToDosWords({1601, 1, 1, 0, 0, 0}).has_value());
}

TEST(ListingTime, WordsAsThePlatformPacksThem) {
    const DosWords words = *ToDosWords({2024, 2, 29, 13, 45, 59});
    EXPECT_EQ((44 << 9) | (2 << 5) | 29, words.date);
    EXPECT_EQ((13 << 11) | (45 << 5) | 29, words.time);
    EXPECT_EQ((CivilTime{2107, 12, 31, 23, 59, 58}), FromDosWords({0xFF9F, 0xBF7D}));
    EXPECT_EQ((CivilTime{1980, 0, 0, 0, 0, 0}), FromDosWords({0, 0}));
}

} // namespace
