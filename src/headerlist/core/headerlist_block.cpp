#include "headerlist/core/headerlist_block.h"

namespace zk::hdr {

ZK_IMPLEMENT_SERIAL(SPropHeaderListBox)

SPropHeaderListBox::SPropHeaderListBox() {
    columns.Add(std::make_unique<SHdrLBColumn>(u"Item", kFormatLeft, 100));
    largeImages.Attach(ImageOps().makeDefault(true));
    smallImages.Attach(ImageOps().makeDefault(false));
}

void SPropHeaderListBox::Reset() {
    columns.RemoveAll();
    largeImages.DeleteImageList();
    smallImages.DeleteImageList();
    backColour = textColour = textBackColour = kViewColour;
    style = 0;
    maxItemLength = 0;
    sortColumn = 0;
    sortOrder = 0;
}

SPropHeaderListBox &SPropHeaderListBox::operator=(const SPropHeaderListBox &other) {
    if (this == &other)
        return *this;
    Reset();
    dropDown = other.dropDown;
    for (const auto &column : other.columns.items)
        if (column)
            columns.Add(std::make_unique<SHdrLBColumn>(column->text, column->format, column->width));
    const ImageListOps &ops = ImageOps();
    if (other.largeImages.Handle())
        largeImages.Attach(ops.copy(other.largeImages.Handle(), true));
    if (other.smallImages.Handle())
        smallImages.Attach(ops.copy(other.smallImages.Handle(), false));
    backColour = other.backColour;
    textColour = other.textColour;
    textBackColour = other.textBackColour;
    style = other.style;
    maxItemLength = other.maxItemLength;
    sortColumn = other.sortColumn;
    sortOrder = other.sortOrder;
    return *this;
}

void SPropHeaderListBox::Serialize(CArchive &ar) {
    if (ar.IsStoring()) {
        columns.Serialize(ar);
        ar.WriteU32(kBlockVersion);
        for (uint32_t value : {backColour, textColour, textBackColour, style})
            ar.WriteU32(value);
        ar.WriteI32(maxItemLength);
        ar.WriteI32(sortColumn);
        largeImages.Write(ar);
        smallImages.Write(ar);
        ar.WriteI32(sortOrder);
        return;
    }
    Reset();
    columns.Serialize(ar);
    const uint32_t version = ar.ReadU32();
    if (version == 0)
        return;
    for (uint32_t *value : {&backColour, &textColour, &textBackColour, &style})
        *value = ar.ReadU32();
    maxItemLength = ar.ReadI32();
    sortColumn = ar.ReadI32();
    largeImages.Read(ar);
    smallImages.Read(ar);
    if (version >= 2)
        sortOrder = ar.ReadI32();
}

} // namespace zk::hdr
