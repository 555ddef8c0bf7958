// ZelStrChoose and the number family.
#include <cstring>

#include "text_support.h"

using namespace textwin;

namespace {

class Choose : public HostTest {};

TEST_F(Choose, StringChoiceAddsAReference) {
    const HostStr a = ZkHostStrMake(L"first");
    const HostStr b = ZkHostStrMake(L"second");
    const HostStr r = ZelStrChoose(7, a, b);
    EXPECT_EQ(a, r);
    EXPECT_EQ(2, ZkHostStrRefs(a));
    EXPECT_EQ(1, ZkHostStrRefs(b));
    ZkHostStrRelease(r);
    const HostStr s = ZelStrChoose(0, a, b);
    EXPECT_EQ(b, s);
    EXPECT_EQ(1, ZkHostStrRefs(a));
    EXPECT_EQ(2, ZkHostStrRefs(b));
    ZkHostStrRelease(s);
    EXPECT_EQ(L"", Take(ZelStrChoose(1, 0, b))) << "no string gives the empty string";
    EXPECT_EQ(1, ZkHostStrRefs(b));
    ZkHostStrRelease(a);
    ZkHostStrRelease(b);
}

HostNumber Record(uint8_t length, uint8_t fill) {
    HostNumber n;
    n.length = length;
    std::memset(n.digits, fill, sizeof n.digits);
    return n;
}

TEST(NumberChoose, CopiesTheWholeRecord) {
    const HostNumber a = Record(3, 0x5A);
    const HostNumber nullB = Record(0, 0xC3); // null, with digits that must travel along
    HostNumber r = ZelNumberChoose(1, a, nullB);
    EXPECT_EQ(0, std::memcmp(&r, &a, sizeof r));
    r = ZelNumberChoose(0, a, nullB);
    EXPECT_EQ(0, std::memcmp(&r, &nullB, sizeof r));
    r = ZelNumberChoose(0x80000000u, nullB, a);
    EXPECT_EQ(0, std::memcmp(&r, &nullB, sizeof r));
}

TEST(NumberBits, SetClearAndBytes) {
    uint32_t word = 0x10;
    EXPECT_EQ(0x13u, ZelNumberBitSet(&word, 0x03));
    EXPECT_EQ(0x13u, word);
    EXPECT_EQ(0x11u, ZelNumberBitClear(&word, 0x02));
    word = 0xFFFFFFFFu;
    EXPECT_EQ(0x7FFFFFFEu, ZelNumberBitClear(&word, 0x80000001u));
    EXPECT_EQ(0u, ZelNumberBitSet(nullptr, 1));
    EXPECT_EQ(0x010203u, ZelNumberHighByte(0x01020304u)) << "not masked";
    EXPECT_EQ(0xFFu, ZelNumberLowByte(0xFFFFFFFFu));
}

TEST(NumberBits, MakeLongIgnoresUpperHalves) {
    EXPECT_EQ(0x56781234u, ZelNumberMakeLong(0x1234, 0x5678));
    // A caller may pass whole 32-bit words; only their low halves count.
    using Wide = uint32_t(ZKAPI *)(uint32_t, uint32_t);
    const auto wide = reinterpret_cast<Wide>(
        reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(L"ZKLIB.dll"), "ZelNumberMakeLong")));
    ASSERT_NE(nullptr, wide);
    EXPECT_EQ(0x56781234u, wide(0xABCD1234u, 0xFFFF5678u));
    EXPECT_EQ(0xFFFFFFFFu, wide(0x0001FFFFu, 0x8000FFFFu));
}

} // namespace
