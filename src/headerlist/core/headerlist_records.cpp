#include "headerlist/core/headerlist_records.h"

namespace zk::hdr {

ZK_IMPLEMENT_SERIAL(SHdrLBColumn)
ZK_IMPLEMENT_SERIAL(SHdrLBItem)

void SHdrLBColumn::Serialize(CArchive &ar) {
    if (ar.IsStoring()) {
        ar.WriteU32(kColumnVersion);
        ar.WriteString(text);
        ar.WriteI32(format);
        ar.WriteI32(width);
        return;
    }
    if (ar.ReadU32() == 0)
        return;
    text = ar.ReadString();
    format = ar.ReadI32();
    width = ar.ReadI32();
}

void SHdrLBItem::SetAtGrow(int32_t column, std::u16string text) {
    if (static_cast<size_t>(column) >= texts.size())
        texts.resize(static_cast<size_t>(column) + 1);
    texts[static_cast<size_t>(column)] = std::move(text);
}

void SHdrLBItem::Serialize(CArchive &ar) {
    if (ar.IsStoring()) {
        ar.WriteCount(texts.size());
        for (const std::u16string &text : texts)
            ar.WriteString(text);
        ar.WriteU32(kItemVersion);
        ar.WriteU32(itemData);
        return;
    }
    const size_t count = ar.ReadCount();
    std::vector<std::u16string> loaded;
    // Each text takes at least its length byte: a count past the file is not believed ahead.
    loaded.reserve(count < ar.Remaining() ? count : ar.Remaining());
    for (size_t i = 0; i < count; ++i)
        loaded.push_back(ar.ReadString());
    texts = std::move(loaded);
    if (ar.ReadU32() == 0)
        return;
    itemData = ar.ReadU32();
}

} // namespace zk::hdr
