// The meter's fill: wide meters from the left, tall and square ones from
// the bottom, the text centred by its extent.
#include <gtest/gtest.h>

#include "controls/core/meter_layout.h"

namespace {

using zk::Rect;
using namespace zk::ctl;

TEST(MeterSums, FillEdgeByShapeAndPercent) {
    struct Case {
        Rect client;
        int percent;
        Rect empty, filled;
    };
    const Case cases[] = {
        {{0, 0, 100, 20}, 50, {50, 0, 100, 20}, {0, 0, 50, 20}},    // wide: from the left
        {{0, 0, 20, 100}, 50, {0, 0, 20, 50}, {0, 50, 20, 100}},    // tall: from the bottom
        {{0, 0, 40, 40}, 25, {0, 0, 40, 30}, {0, 30, 40, 40}},      // square counts as tall
        {{0, 0, 100, 20}, 0, {0, 0, 100, 20}, {0, 0, 0, 20}},       // nothing filled
        {{0, 0, 100, 20}, 100, {100, 0, 100, 20}, {0, 0, 100, 20}}, // all filled
        {{0, 0, 30, 7}, 37, {11, 0, 30, 7}, {0, 0, 11, 7}},         // 30 * 37 / 100 truncates
        {{0, 0, 7, 30}, 37, {0, 0, 7, 18}, {0, 18, 7, 30}},         // 63 * 30 / 100 truncates
    };
    for (const Case &c : cases) {
        const MeterLayout l(c.client, c.percent, 10, 8);
        EXPECT_EQ(l.empty, c.empty) << c.client.right << "x" << c.client.bottom << " at " << c.percent;
        EXPECT_EQ(l.filled, c.filled) << c.client.right << "x" << c.client.bottom << " at " << c.percent;
    }
    EXPECT_EQ(MeterLayout(Rect{0, 0, 101, 21}, 5, 17, 9).text, (zk::Point{50 - 8, 10 - 4}));
    EXPECT_EQ(MeterText(37), u"37%");
    EXPECT_EQ(MeterText(100), u"100%");
}

} // namespace
