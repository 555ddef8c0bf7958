// Property blocks on the reference host's design items: the store and load
// pair, the spin record, and the block a wrapper loads when it is created.
#include <cstring>

#include "designer_win_test.h"

using namespace designertest;
using Bytes = std::vector<uint8_t>;

namespace {

class PropBlocks : public testing::Test {
protected:
    void SetUp() override {
        outline = ZkHostDesignNewOutline();
        item = ZkHostDesignAddItem(outline, 0, 22);
        ASSERT_NE(item, 0u);
    }
    void TearDown() override { ZkHostDesignFreeOutline(outline); }

    // What HostPropGet gives for a property: the locked bytes.
    Bytes Stored(const wchar_t *name) {
        HostStr handle = 0;
        if (!HostPropGet(outline, item, name, &handle))
            return {};
        int32_t size = 0;
        const auto *p = reinterpret_cast<const uint8_t *>(HostStrLock(handle, &size));
        return p ? Bytes(p, p + size) : Bytes{};
    }
    void Put(const wchar_t *name, const Bytes &bytes) {
        ASSERT_EQ(HostPropSet(outline, item, name, bytes.data(), static_cast<int32_t>(bytes.size())), 1);
    }

    HostOutline outline = 0;
    HostItem item = 0;
};

TEST_F(PropBlocks, StoreGivesTheHostTheFileAndTwoZerosLoadGetsTheFileBack) {
    zk::CMemFile file;
    file.Write("\x01\x02\x03\x04\x05", 5);
    file.SeekToBegin();
    EXPECT_EQ(zk::PropBlockStore(outline, item, L"ZK:Test", file), 1);
    EXPECT_EQ(Stored(L"ZK:Test"), (Bytes{1, 2, 3, 4, 5, 0})) << "N + 2 stored, N + 1 handed back";

    zk::CMemFile back;
    back.Write("pre", 3);
    EXPECT_EQ(zk::PropBlockLoad(outline, item, L"ZK:Test", back), 1);
    ASSERT_EQ(back.GetLength(), 8u) << "the N bytes are written at the file's position";
    EXPECT_EQ(std::memcmp(back.Data(), "pre\x01\x02\x03\x04\x05", 8), 0);
}

TEST_F(PropBlocks, MissingPropertiesItemsAndNamesLoadNothing) {
    zk::CMemFile file;
    EXPECT_EQ(zk::PropBlockLoad(outline, item, L"ZK:Calendar", file), 0);
    EXPECT_EQ(zk::PropBlockLoad(outline, 0, L"ZK:Calendar", file), 0);
    EXPECT_EQ(zk::PropBlockLoad(0, item, L"ZK:Calendar", file), 0);
    EXPECT_EQ(zk::PropBlockLoad(outline, item, nullptr, file), 0);
    EXPECT_EQ(file.GetLength(), 0u);
    zk::CMemFile some;
    some.Write("x", 1);
    some.SeekToBegin();
    EXPECT_EQ(zk::PropBlockStore(outline, 0, L"ZK:Calendar", some), 0) << "the host's answer for no item";
}

TEST_F(PropBlocks, BlocksRoundTripThroughTheItem) {
    zk::SPropGeneric block;
    block.style1 = 1;
    block.style3 = 1;
    block.style6 = 0;
    EXPECT_EQ(zk::StoreItemBlock(outline, item, zk::kPropCalendar, block), 1);
    EXPECT_EQ(Stored(zk::kPropCalendar), (Bytes{1, 0, 0, 0, 1, 1, 1, 1, 0, 0, 0}));
    zk::SPropGeneric back;
    ASSERT_TRUE(zk::LoadItemBlock(outline, item, zk::kPropCalendar, back));
    EXPECT_EQ(back.style1, 1);
    EXPECT_EQ(back.style3, 1);
    EXPECT_EQ(back.style6, 0);
}

TEST_F(PropBlocks, EmptyVersionZeroAndShortBlocksKeepDefaults) {
    Put(zk::kPropCalendar, {0, 0}); // what a block of length 0 is stored as
    zk::SPropGeneric empty;
    empty.style2 = 7;
    EXPECT_TRUE(zk::LoadItemBlock(outline, item, zk::kPropCalendar, empty)) << "found, nothing to read";
    EXPECT_EQ(empty.style2, 7);

    Put(zk::kPropCalendar, {0, 0, 0, 0, 1, 1, 1, 1, 1, 1, 0, 0});
    zk::SPropGeneric zero;
    EXPECT_TRUE(zk::LoadItemBlock(outline, item, zk::kPropCalendar, zero));
    EXPECT_EQ(zero.style1, 0) << "version 0 reads nothing";
    EXPECT_EQ(zero.style2, 1);

    Put(zk::kPropCalendar, {1, 0, 0, 0, 1, 0, 1, 0, 0}); // a file of 7 bytes
    zk::SPropGeneric cut;
    EXPECT_TRUE(zk::LoadItemBlock(outline, item, zk::kPropCalendar, cut));
    EXPECT_EQ(cut.style1, 1);
    EXPECT_EQ(cut.style2, 0);
    EXPECT_EQ(cut.style3, 1) << "read before the end";
    EXPECT_EQ(cut.style4, 1) << "the defaults of what was missing";
    EXPECT_EQ(cut.style5, 0);
    EXPECT_EQ(cut.style6, 1);
}

TEST_F(PropBlocks, TheSpinRecordIsEighteenBytesOutAndSeventeenBack) {
    zk::SpinBlock block{-10, 500, 5, -2};
    EXPECT_EQ(zk::SpinBlockStore(outline, item, block), 1);
    const Bytes stored = Stored(zk::kPropSpinField);
    EXPECT_EQ(stored, (Bytes{0xF6, 0xFF, 0xFF, 0xFF, 0xF4, 0x01, 0, 0, 5, 0, 0, 0, 0xFE, 0xFF, 0xFF, 0xFF, 0}));
    zk::SpinBlock back;
    ASSERT_TRUE(zk::SpinBlockLoad(outline, item, back));
    EXPECT_EQ(back.minimum, -10);
    EXPECT_EQ(back.maximum, 500);
    EXPECT_EQ(back.increment, 5);
    EXPECT_EQ(back.decimalAdjust, 0x00FFFFFE);
}

TEST_F(PropBlocks, ASpinRecordOfAnotherLengthIsFoundButCopiesNothing) {
    zk::SpinBlock none;
    EXPECT_FALSE(zk::SpinBlockLoad(outline, item, none)) << "no property";
    Put(zk::kPropSpinField, Bytes(16, 9));
    zk::SpinBlock block;
    EXPECT_TRUE(zk::SpinBlockLoad(outline, item, block));
    EXPECT_EQ(block.minimum, 1);
    EXPECT_EQ(block.maximum, 0x7FFFFFFF);
    EXPECT_EQ(block.increment, 1);
    EXPECT_EQ(block.decimalAdjust, 0);
}

TEST_F(PropBlocks, AWrapperLoadsItsBlockAtCreationWhenTheHostMarksIt) {
    zk::SPropGeneric block;
    block.style1 = 1;
    block.style2 = 0;
    ASSERT_EQ(zk::StoreItemBlock(outline, item, zk::kPropCalendar, block), 1);
    zkt::TestWindow parent;
    uint8_t marked[8] = {0, 0, 0, 0, 1, 0, 0, 0};
    uint8_t unmarked[8] = {0, 0, 0, 0, 2, 0, 0, 0};
    {
        BindNewWindows bind(outline, item);
        HWND withBlock = MakeControl(kWrapperClass, parent, 1, marked);
        HWND without = MakeControl(kWrapperClass, parent, 2, unmarked);
        HWND noParameter = MakeControl(kWrapperClass, parent, 3, nullptr);
        auto *a = static_cast<WrapperControl *>(zk::Window::FromHandle(withBlock));
        auto *b = static_cast<WrapperControl *>(zk::Window::FromHandle(without));
        auto *c = static_cast<WrapperControl *>(zk::Window::FromHandle(noParameter));
        ASSERT_TRUE(a && b && c);
        EXPECT_TRUE(a->loaded);
        EXPECT_EQ(a->Flags(0), 1);
        EXPECT_EQ(a->Flags(1), 0);
        EXPECT_FALSE(b->loaded) << "bit 0 of the byte at offset 4 is clear";
        EXPECT_FALSE(c->loaded);
        EXPECT_EQ(b->Flags(0), 0);
    }
    HWND unbound = MakeControl(kWrapperClass, parent, 4, marked);
    auto *d = static_cast<WrapperControl *>(zk::Window::FromHandle(unbound));
    ASSERT_NE(d, nullptr);
    EXPECT_FALSE(d->loaded) << "a window without design item";
}

} // namespace
