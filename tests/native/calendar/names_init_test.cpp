// The name tables are filled once per process, by the first date built:
// this test runs alone in a process of its own (test.cmake) to see that
// first construction.
#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "calendar/core/date_ops.h"
#include "calendar/core/datetime.h"
#include "frame/core/errors.h"

namespace {

using zk::cal::CDateTime;

std::vector<uint32_t> &Asked() {
    static std::vector<uint32_t> ids;
    return ids;
}

// Runs out of memory at the fifth month.
std::u16string Loader(uint32_t id) {
    Asked().push_back(id);
    if (id == 20)
        throw std::bad_alloc();
    const std::string text = "text " + std::to_string(id);
    return std::u16string(text.begin(), text.end());
}

TEST(NameTables, TheFirstDateFillsThemOnceAndSwallowsAMemoryException) {
    // In a run of the whole program an earlier test has built the first date
    // already, and the loader bound here would stay for the tests after it.
    if (::testing::GTEST_FLAG(filter) != "NameTables.*")
        GTEST_SKIP() << "runs alone: --gtest_filter=NameTables.*";
    zk::cal::BindPlatform({Loader, [](int32_t) -> uint32_t { return 0; }});
    ASSERT_TRUE(Asked().empty());
    EXPECT_NO_THROW(CDateTime(2000, 1, 1));
    const std::vector<uint32_t> weekdaysThenMonths = {32, 33, 34, 35, 36, 37, 38, 16, 17, 18, 19, 20};
    EXPECT_EQ(Asked(), weekdaysThenMonths);

    // The flag is set all the same: no second try, by any constructor.
    const CDateTime now, copy(now), fromRecord(HostDateTime{});
    EXPECT_EQ(Asked().size(), weekdaysThenMonths.size());

    EXPECT_EQ(CDateTime::WeekdayName(7), u"text 38");
    EXPECT_EQ(CDateTime::MonthName(0), u"NULL MONTH");
    EXPECT_EQ(CDateTime::MonthName(4), u"text 19");
    EXPECT_EQ(CDateTime::MonthName(5), u"") << "the table stays as far as it got";
    EXPECT_EQ(CDateTime::MonthName(12), u"");
    EXPECT_THROW(CDateTime::MonthName(13), zk::InvalidArgException);
}

} // namespace
