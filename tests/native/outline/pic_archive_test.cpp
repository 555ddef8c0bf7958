// The archive bytes that pictures are stored in: strings, counts, tags.
#include <gtest/gtest.h>

#include "outline/core/pic_archive.h"

using namespace zk::lbx;

using namespace zk::lbx::picstream;
using Bytes = std::vector<uint8_t>;

namespace {

Bytes StringBytes(std::u16string_view text) {
    Writer w;
    w.String(text);
    return w.Take();
}

std::u16string ReadString(const Bytes &bytes, bool *ok = nullptr, size_t *used = nullptr) {
    Reader r(bytes.data(), bytes.size());
    std::u16string s = r.String();
    if (ok)
        *ok = r.Ok();
    if (used)
        *used = r.Position();
    return s;
}

TEST(PicArchive, StringPrefixes) {
    EXPECT_EQ(StringBytes(u""), (Bytes{0xFF, 0xFE, 0xFF, 0x00}));
    EXPECT_EQ(StringBytes(u"Ab"), (Bytes{0xFF, 0xFE, 0xFF, 0x02, 'A', 0, 'b', 0}));
    // 254 characters still take one length byte, 255 the byte 0xFF and a u16.
    Bytes b254 = StringBytes(std::u16string(254, u'x'));
    EXPECT_EQ(b254.size(), 4u + 508u);
    EXPECT_EQ(b254[3], 254);
    Bytes b255 = StringBytes(std::u16string(255, u'x'));
    EXPECT_EQ((Bytes(b255.begin(), b255.begin() + 6)), (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0x00}));
    Bytes bFFFD = StringBytes(std::u16string(0xFFFD, u'x'));
    EXPECT_EQ((Bytes(bFFFD.begin(), bFFFD.begin() + 6)), (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 0xFD, 0xFF}));
    Bytes bFFFE = StringBytes(std::u16string(0xFFFE, u'x'));
    EXPECT_EQ((Bytes(bFFFE.begin(), bFFFE.begin() + 10)),
              (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0x00, 0x00}));
    EXPECT_EQ(bFFFE.size(), 10u + 2u * 0xFFFE);
}

TEST(PicArchive, StringsReadBackInEveryPrefixForm) {
    for (size_t n : {0u, 1u, 254u, 255u, 300u, 0xFFFDu, 0xFFFEu, 0x10001u}) {
        std::u16string text(n, u'\u00e9');
        if (n)
            text[0] = u'\u4e2d';
        bool ok = false;
        size_t used = 0;
        const Bytes bytes = StringBytes(text);
        EXPECT_EQ(ReadString(bytes, &ok, &used), text) << n;
        EXPECT_TRUE(ok);
        EXPECT_EQ(used, bytes.size());
    }
}

TEST(PicArchive, SingleByteStringsAreWidened) {
    EXPECT_EQ(ReadString({0x03, 'a', 0xE9, 'c'}), u"a\u00e9c");
    EXPECT_EQ(ReadString({0xFF, 0x04, 0x00, 'w', 'x', 'y', 'z'}), u"wxyz");
    EXPECT_EQ(ReadString({0xFF, 0xFF, 0xFF, 0x02, 0, 0, 0, 'h', 'i'}), u"hi");
    // A reader of the platform widens with its code page.
    Reader r(reinterpret_cast<const uint8_t *>("\x02ok"), 3,
             [](std::string_view b) { return std::u16string(b.size(), u'?'); });
    EXPECT_EQ(r.String(), u"??");
}

TEST(PicArchive, ShortOrMalformedStringsFail) {
    const Bytes good = StringBytes(u"hello");
    for (size_t cut = 0; cut < good.size(); ++cut) {
        bool ok = true;
        ReadString(Bytes(good.begin(), good.begin() + cut), &ok);
        EXPECT_FALSE(ok) << cut;
    }
    bool ok = true;
    ReadString({0xFF, 0xFE, 0xFF, 0xFF, 0xFE, 0xFF, 0x00}, &ok); // the wide tag twice
    EXPECT_FALSE(ok);
    ReadString({0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F}, &ok); // 2^31 characters claimed
    EXPECT_FALSE(ok);
    // Once failed, every later read fails and gives zero.
    Reader r(good.data(), 2);
    r.U32();
    EXPECT_FALSE(r.Ok());
    EXPECT_EQ(r.U8(), 0);
    EXPECT_EQ(r.Remaining(), 0u);
}

TEST(PicArchive, CountsAndTags) {
    Writer w;
    w.Count(0xFFFE);
    w.Count(0xFFFF);
    w.NewClass(1, "PICITEM");
    w.ClassRef(1);
    w.ClassRef(0x7FFF);
    EXPECT_EQ(w.Bytes(), (Bytes{0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0xFF, 0xFF, 0x01, 0x00, 0x07, 0x00, 'P',
                                'I',  'C',  'I',  'T',  'E',  'M',  0x01, 0x80, 0xFF, 0x7F, 0xFF, 0x7F, 0x00, 0x80}));
    Reader r(w.Bytes().data(), w.Bytes().size());
    EXPECT_EQ(r.Count(), 0xFFFEu);
    EXPECT_EQ(r.Count(), 0xFFFFu);
    ObjectTag t = ReadObjectTag(r);
    EXPECT_EQ(t.kind, ObjectTag::NewClass);
    EXPECT_EQ(t.schema, 1);
    EXPECT_EQ(t.className, "PICITEM");
    t = ReadObjectTag(r);
    EXPECT_EQ(t.kind, ObjectTag::ClassRef);
    EXPECT_EQ(t.index, 1u);
    t = ReadObjectTag(r);
    EXPECT_EQ(t.kind, ObjectTag::ClassRef);
    EXPECT_EQ(t.index, 0x7FFFu);
    EXPECT_TRUE(r.Ok());
    EXPECT_EQ(r.Remaining(), 0u);

    const Bytes refs{0x00, 0x00, 0x02, 0x00, 0xFF, 0x7F, 0x05, 0x00, 0x01, 0x00};
    Reader o(refs.data(), refs.size());
    EXPECT_EQ(ReadObjectTag(o).kind, ObjectTag::Null);
    t = ReadObjectTag(o);
    EXPECT_EQ(t.kind, ObjectTag::ObjectRef);
    EXPECT_EQ(t.index, 2u);
    t = ReadObjectTag(o);
    EXPECT_EQ(t.kind, ObjectTag::ObjectRef);
    EXPECT_EQ(t.index, 0x10005u);
    EXPECT_EQ(ReadObjectTag(o).kind, ObjectTag::Bad); // nothing left
}

} // namespace
