// The listing of network connections against a fake network: which drives
// and ports are asked, the growing answer block, the early return, and what
// a drive that drops its connection between the two questions does.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "os/core/net_connections.h"

using namespace zk::os;

namespace {

constexpr uint32_t kNotConnected = 2250; // ERROR_NOT_CONNECTED
constexpr uint32_t kUnavailable = 1201;  // ERROR_CONNECTION_UNAVAIL
constexpr int32_t kFixed = 3;            // DRIVE_FIXED

class FakeNetwork : public NetPlatform {
public:
    std::map<char16_t, int32_t> types;               // drive types; others are 0
    std::map<std::u16string, std::u16string> remote; // connected local names
    std::set<std::u16string> dropped;                // remote by type, gone by the query
    std::vector<std::u16string> asked;               // every query, in order
    std::vector<size_t> allocations;                 // sizes of the blocks made
    int failAllocation = -1;                         // index of the allocation that fails

    int32_t DriveType(char16_t letter) override {
        const auto it = types.find(letter);
        return it == types.end() ? 0 : it->second;
    }
    uint32_t Connection(const char16_t *local, char16_t *buffer, uint32_t *chars) override {
        asked.emplace_back(local);
        if (dropped.count(local))
            return kUnavailable;
        const auto it = remote.find(local);
        if (it == remote.end())
            return kNotConnected;
        if (it->second.size() + 1 > *chars) {
            *chars = static_cast<uint32_t>(it->second.size() + 1);
            return kNetMoreData;
        }
        std::copy(it->second.begin(), it->second.end(), buffer);
        buffer[it->second.size()] = u'\0';
        return 0;
    }
    bool Allocate(std::vector<char16_t> &block, size_t chars) noexcept override {
        const bool fail = static_cast<int>(allocations.size()) == failAllocation;
        allocations.push_back(chars);
        if (fail) {
            block = {};
            return false;
        }
        return NetPlatform::Allocate(block, chars);
    }
    void Remote(char16_t letter, std::u16string name) {
        types[letter] = kDriveRemote;
        remote[std::u16string{letter, u':'}] = std::move(name);
    }
};

class FakeArrays : public NetListing {
public:
    std::map<int32_t, std::pair<std::u16string, std::u16string>> pairs;
    int32_t last = -100; // -100: bounds never set
    int failAdd = -1;    // index of the Add that fails

    bool Add(int32_t index, std::u16string_view local, std::u16string_view remote) override {
        if (static_cast<int32_t>(pairs.size()) == failAdd)
            return false;
        pairs[index] = {std::u16string(local), std::u16string(remote)};
        return true;
    }
    void Finish(int32_t lastIndex) override { last = lastIndex; }
    std::vector<std::u16string> Locals() const { // in index order
        std::vector<std::u16string> out;
        for (const auto &p : pairs)
            out.push_back(p.second.first);
        return out;
    }
};

using Names = std::vector<std::u16string>;

TEST(NetConnections, DrivesThenPortsZeroToTwo) {
    FakeNetwork net;
    net.types = {{u'C', kFixed}, {u'A', 2}};
    net.Remote(u'M', u"\\\\srv\\music");
    net.Remote(u'H', u"\\\\srv\\home");
    net.remote[u"LPT1"] = u"\\\\srv\\laser";
    net.remote[u"LPT3"] = u"\\\\srv\\never";
    FakeArrays arrays;
    EXPECT_EQ(3, EnumNetConnections(net, arrays));
    EXPECT_EQ((Names{u"H:", u"M:", u"LPT1"}), arrays.Locals());
    EXPECT_EQ(u"\\\\srv\\laser", arrays.pairs[2].second);
    EXPECT_EQ(2, arrays.last);
    // Only remote drives are asked, and the port numbered 3 never is.
    EXPECT_EQ((Names{u"H:", u"M:", u"LPT0", u"LPT1", u"LPT2"}), net.asked);
}

TEST(NetConnections, NoNetworkDriveEndsBeforeThePrinters) {
    FakeNetwork net;
    net.types = {{u'C', kFixed}};
    net.remote[u"LPT1"] = u"\\\\srv\\laser";
    FakeArrays arrays;
    EXPECT_EQ(0, EnumNetConnections(net, arrays));
    EXPECT_TRUE(net.asked.empty());
    EXPECT_EQ(-100, arrays.last) << "bounds are left alone";

    // Remote drives that all fail: the last one's error, nothing listed.
    net.types[u'P'] = kDriveRemote;
    net.types[u'Q'] = kDriveRemote;
    net.dropped.insert(u"Q:");
    EXPECT_EQ(-static_cast<int32_t>(kUnavailable), EnumNetConnections(net, arrays));
    EXPECT_TRUE(arrays.pairs.empty());
    EXPECT_EQ(-100, arrays.last);
}

TEST(NetConnections, DriveThatDropsItsConnectionBetweenTheCalls) {
    for (const char16_t *dropped : {u"F:", u"G:"}) {
        FakeNetwork net;
        net.Remote(u'F', u"\\\\a\\f");
        net.Remote(u'G', u"\\\\a\\g");
        net.remote[u"LPT0"] = u"\\\\a\\p";
        net.dropped.insert(dropped);
        FakeArrays arrays;
        if (dropped[0] == u'F') { // before another remote drive: nothing, the rest goes on
            EXPECT_EQ(2, EnumNetConnections(net, arrays));
            EXPECT_EQ((Names{u"G:", u"LPT0"}), arrays.Locals());
            EXPECT_EQ(1, arrays.last);
            continue;
        }
        // As the last remote drive: its error ends the listing, the pairs
        // made so far stay in the arrays without bounds, printers unasked.
        EXPECT_EQ(-static_cast<int32_t>(kUnavailable), EnumNetConnections(net, arrays));
        EXPECT_EQ((Names{u"F:"}), arrays.Locals());
        EXPECT_EQ(-100, arrays.last);
        EXPECT_EQ((Names{u"F:", u"G:"}), net.asked);
    }
}

TEST(NetConnections, LongNamesGrowTheBlockBy256AndKeepIt) {
    FakeNetwork net;
    const std::u16string longName = u"\\\\server\\" + std::u16string(600, u'x'); // 609 characters
    net.Remote(u'D', u"\\\\s\\d");
    net.Remote(u'E', longName);
    net.Remote(u'K', u"\\\\s\\k");
    net.remote[u"LPT2"] = longName + u"p";
    FakeArrays arrays;
    EXPECT_EQ(4, EnumNetConnections(net, arrays));
    EXPECT_EQ(longName, arrays.pairs[1].second);
    EXPECT_EQ(u"\\\\s\\k", arrays.pairs[2].second) << "a short name after a long one";
    EXPECT_EQ(longName + u"p", arrays.pairs[3].second);
    // 256, 512, 768 characters, whatever size the platform said it wanted;
    // the block keeps its size for the names after.
    EXPECT_EQ((std::vector<size_t>{256, 512, 768}), net.allocations);
}

TEST(NetConnections, MemoryFailures) {
    const std::u16string longName(300, u'y');
    struct Case {
        const char *what;
        int failAllocation;
        int failAdd;
    };
    for (const Case c : {Case{"first block", 0, -1}, Case{"growing block", 1, -1}, Case{"host string", -1, 0},
                         Case{"printer's host string", -1, 2}}) {
        SCOPED_TRACE(c.what);
        FakeNetwork net;
        net.Remote(u'X', longName);
        net.Remote(u'Y', u"\\\\s\\y");
        net.remote[u"LPT0"] = u"\\\\s\\p";
        net.failAllocation = c.failAllocation;
        FakeArrays arrays;
        arrays.failAdd = c.failAdd;
        EXPECT_EQ(kNetNoMemory, EnumNetConnections(net, arrays));
        EXPECT_EQ(-100, arrays.last);
    }
}

TEST(NetName, BackslashesRemovedAndFailuresGiveNothing) {
    FakeNetwork net;
    net.remote[u"Z:"] = u"\\\\srv\\z";
    net.remote[u"LPT1"] = std::u16string(700, u'q');
    EXPECT_EQ(u"\\\\srv\\z", NetName(net, u"Z:\\").value_or(u"<none>"));
    EXPECT_EQ(u"\\\\srv\\z", NetName(net, u"\\Z:\\\\").value_or(u"<none>"));
    EXPECT_EQ(u"Z:", net.asked.back());
    EXPECT_EQ(std::u16string(700, u'q'), NetName(net, u"LPT1").value_or(u"<none>"));
    EXPECT_FALSE(NetName(net, u"C:\\").has_value()) << "a local drive";
    EXPECT_FALSE(NetName(net, u"").has_value());

    FakeNetwork starved;
    starved.remote[u"Z:"] = std::u16string(300, u'z');
    starved.failAllocation = 1;
    EXPECT_FALSE(NetName(starved, u"Z:").has_value());
}

} // namespace
