// Bytes of any shape into the archive reader and every block reader: the
// generic block, the splitter's block, the spin record, the palette block,
// texts, counts, tagged objects, object arrays and the header list's block
// with its image streams. Beyond not crashing, nothing but the archive's own
// exceptions may come out, and whatever was read whole must come back
// through its writer.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "controls/core/spin_block.h"
#include "controls/core/splitter_block.h"
#include "frame/core/archive.h"
#include "frame/core/block_io.h"
#include "frame/core/generic_block.h"
#include "frame/core/obarray.h"
#include "headerlist/core/headerlist_block.h"
#include "palette/core/palette_block.h"

namespace {

void check(bool condition) {
    if (!condition)
        __builtin_trap();
}

// Two element classes, as palette colours and menu entries are built.
class FuzzColour : public zk::CObject {
    ZK_DECLARE_SERIAL(FuzzColour)
public:
    int32_t colour = 0;
    int32_t flag = 0;
    void Serialize(zk::CArchive &ar) override {
        if (ar.IsStoring()) {
            ar.WriteU32(1);
            ar.WriteI32(colour);
            ar.WriteFlag(flag);
        } else if (ar.ReadU32() != 0) {
            colour = ar.ReadI32();
            flag = ar.ReadFlag();
        }
    }
};
ZK_IMPLEMENT_SERIAL(FuzzColour)

class FuzzMenu : public zk::CObject {
    ZK_DECLARE_SERIAL(FuzzMenu)
public:
    std::u16string text;
    void Serialize(zk::CArchive &ar) override {
        if (ar.IsStoring())
            ar.WriteString(text);
        else
            text = ar.ReadString();
    }
};
ZK_IMPLEMENT_SERIAL(FuzzMenu)

// A block shaped like the richer ones: the generic part, a text, two arrays.
struct FuzzBlock {
    zk::SPropGeneric generic;
    std::u16string text;
    zk::ObArray<FuzzColour> colours;
    zk::ObArray<FuzzMenu> menus;
    void Serialize(zk::CArchive &ar) {
        generic.Serialize(ar);
        if (ar.IsStoring())
            ar.WriteString(text);
        else
            text = ar.ReadString();
        colours.Serialize(ar);
        menus.Serialize(ar);
    }
};

bool SameGeneric(const zk::SPropGeneric &a, const zk::SPropGeneric &b) {
    return a.style1 == b.style1 && a.style2 == b.style2 && a.style3 == b.style3 && a.style4 == b.style4 &&
           a.style5 == b.style5 && a.style6 == b.style6;
}

bool SameBlock(const FuzzBlock &a, const FuzzBlock &b) {
    if (!SameGeneric(a.generic, b.generic) || a.text != b.text || a.colours.size() != b.colours.size() ||
        a.menus.size() != b.menus.size())
        return false;
    for (size_t i = 0; i < a.colours.size(); ++i) {
        const FuzzColour *x = a.colours.at(i), *y = b.colours.at(i);
        if (!x != !y || (x && (x->colour != y->colour || x->flag != y->flag)))
            return false;
    }
    for (size_t i = 0; i < a.menus.size(); ++i) {
        const FuzzMenu *x = a.menus.at(i), *y = b.menus.at(i);
        if (!x != !y || (x && x->text != y->text))
            return false;
    }
    return true;
}

template <class Block>
void RoundTrip(const Block &read, bool (*same)(const Block &, const Block &)) {
    zk::CMemFile file;
    zk::StoreBlock(file, const_cast<Block &>(read));
    file.SeekToBegin();
    Block back;
    check(zk::LoadBlock(file, back));
    check(file.Remaining() == 0);
    check(same(read, back));
}

void Generic(const uint8_t *data, size_t size) {
    zk::SPropGeneric block;
    if (zk::LoadBlockBytes(data, size, block))
        RoundTrip<zk::SPropGeneric>(block, &SameGeneric);
    for (int32_t style : {block.style1, block.style2, block.style3, block.style4, block.style5, block.style6})
        check(style >= 0 && style <= 255);
}

bool SameSplitter(const zk::ctl::SPropSplitter &a, const zk::ctl::SPropSplitter &b) {
    return a.frameColor == b.frameColor && a.faceColor == b.faceColor && a.lightColor == b.lightColor &&
           a.shadowColor == b.shadowColor && a.metricA == b.metricA && a.metricB == b.metricB &&
           a.metricC == b.metricC && a.bevelLines == b.bevelLines && a.orientation == b.orientation &&
           a.displayHandle == b.displayHandle && a.invertWhenDragging == b.invertWhenDragging;
}

void Splitter(const uint8_t *data, size_t size) {
    zk::ctl::SPropSplitter block;
    if (zk::LoadBlockBytes(data, size, block))
        RoundTrip<zk::ctl::SPropSplitter>(block, &SameSplitter);
    check(block.displayHandle >= 0 && block.displayHandle <= 255);
}

void Spin(const uint8_t *data, size_t size) {
    zk::SpinBlock block;
    const bool copied = zk::SpinBlockApply(data, static_cast<int64_t>(size), block);
    check(copied == (size == 17));
    check((static_cast<uint32_t>(block.decimalAdjust) >> 24) == 0);
    if (copied) {
        const auto image = zk::SpinBlockImage(block);
        check(std::memcmp(image.data(), data, zk::kSpinCopiedBytes) == 0);
    }
}

void Rich(const uint8_t *data, size_t size) {
    FuzzBlock block;
    if (zk::LoadBlockBytes(data, size, block))
        RoundTrip<FuzzBlock>(block, &SameBlock);
}

template <class Element>
bool SameElements(const zk::ObArray<Element> &a, const zk::ObArray<Element> &b,
                  bool (*same)(const Element &, const Element &)) {
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i) {
        const Element *x = a.at(i), *y = b.at(i);
        if (!x != !y || (x && !same(*x, *y)))
            return false;
    }
    return true;
}

bool SamePalette(const zk::pal::SPropPalette &a, const zk::pal::SPropPalette &b) {
    return a.autoSize == b.autoSize && a.dropDown == b.dropDown && a.enableRecent == b.enableRecent &&
           a.keepSelection == b.keepSelection && a.recentMax == b.recentMax &&
           SameElements<zk::pal::SPaletteColor>(
               a.mainColors, b.mainColors,
               [](const zk::pal::SPaletteColor &x, const zk::pal::SPaletteColor &y) { return x.colour == y.colour; }) &&
           SameElements<zk::pal::SPaletteMenu>(a.menus, b.menus,
                                               [](const zk::pal::SPaletteMenu &x, const zk::pal::SPaletteMenu &y) {
                                                   return x.text == y.text && x.id == y.id;
                                               });
}

// The palette block, and its copy, which must equal it without sharing.
void Palette(const uint8_t *data, size_t size) {
    zk::pal::SPropPalette block;
    if (!zk::LoadBlockBytes(data, size, block))
        return;
    for (int32_t flag : {block.autoSize, block.dropDown, block.enableRecent, block.keepSelection})
        check(flag >= 0 && flag <= 255);
    RoundTrip<zk::pal::SPropPalette>(block, &SamePalette);
    const zk::pal::SPropPalette copy(block);
    check(SamePalette(copy, block));
    for (size_t i = 0; i < copy.mainColors.size(); ++i)
        check(!copy.mainColors.at(i) || copy.mainColors.at(i) != block.mainColors.at(i));
}

// The header list's block: columns, colours, image list streams.
std::vector<uint8_t> Bytes(zk::hdr::SPropHeaderListBox &block) {
    zk::CMemFile file;
    zk::StoreBlock(file, block);
    return std::vector<uint8_t>(file.Data(), file.Data() + file.GetLength());
}

void HeaderList(const uint8_t *data, size_t size) {
    zk::hdr::SPropHeaderListBox block;
    // A block read without its lists (version 0) writes none back, as the
    // platform writes nothing for no list: only whole blocks come back.
    if (!zk::LoadBlockBytes(data, size, block) || !block.largeImages.Handle() || !block.smallImages.Handle())
        return;
    const std::vector<uint8_t> once = Bytes(block);
    zk::hdr::SPropHeaderListBox back;
    check(zk::LoadBlockBytes(once.data(), once.size(), back));
    check(Bytes(back) == once);
}

// Single reads from the start: each either gives a value or an ArchiveException.
void Pieces(const uint8_t *data, size_t size) {
    zk::CMemFile file;
    file.Write(data, size);
    for (int piece = 0; piece < 4; ++piece) {
        file.SeekToBegin();
        zk::CArchive ar(file, zk::CArchive::load);
        try {
            switch (piece) {
            case 0:
                (void)ar.ReadString();
                break;
            case 1:
                (void)ar.ReadCount();
                break;
            case 2:
                while (ar.Remaining())
                    (void)ar.ReadObjectAs<FuzzColour>();
                break;
            default:
                while (ar.Remaining())
                    (void)ar.ReadObjectAs<FuzzMenu>();
                break;
            }
        } catch (const zk::ArchiveException &) {
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    Generic(data, size);
    Splitter(data, size);
    Spin(data, size);
    Rich(data, size);
    Palette(data, size);
    HeaderList(data, size);
    Pieces(data, size);
    return 0;
}
