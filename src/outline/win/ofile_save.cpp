// ZelListSaveOutline: the tree with its pictures and fonts into a host string.
#include <cstdint>
#include <cstring>
#include <unordered_map>
#include <vector>

#include "frame/win/guard.h"
#include "frame/win/host.h"
#include "outline/core/ofile_collect.h"
#include "outline/win/lbx_win.h"
#include "outline/win/ofile_win.h"
#include "outline/win/pic.h"

namespace zk::lbx::ofile {
namespace {

// The registries of the list with an index of what they hold, so that each
// node's objects are found or added in constant time.
class Registries {
public:
    explicit Registries(HWND window) : window_(window) {}

    // Both registries made if missing and indexed; the control's own font
    // joins first. False when a registry cannot be made.
    bool Open() {
        pics_ = LbxPicAdd(window_, nullptr);
        fonts_ = LbxFontAdd(window_, reinterpret_cast<HFONT>(SendMessageW(window_, WM_GETFONT, 0, 0)));
        if (!pics_ || !fonts_)
            return false;
        for (int i = 0; i < pics_->Count(); ++i)
            picIndex_.emplace(pics_->At(i), i);
        for (int i = 0; i < fonts_->Count(); ++i)
            fontIndex_.emplace(fonts_->At(i), i);
        return true;
    }

    // A node's picture joins the registry unless it is null, there already,
    // or no longer alive (freed by the application behind the item).
    void AddPicture(PIC *pic) {
        if (pic && !picIndex_.count(pic) && PicIsLive(pic)) {
            picIndex_.emplace(pic, pics_->Count());
            pics_->Append(pic);
        }
    }
    void AddFont(HFONT font) {
        if (font && !fontIndex_.count(font)) {
            fontIndex_.emplace(font, fonts_->Count());
            fonts_->Append(font);
        }
    }

    int32_t PictureIndex(PIC *pic) const {
        const auto found = pic ? picIndex_.find(pic) : picIndex_.end();
        return found == picIndex_.end() ? -1 : found->second;
    }
    int32_t FontIndex(void *font) const {
        const auto found = font ? fontIndex_.find(static_cast<HFONT>(font)) : fontIndex_.end();
        return found == fontIndex_.end() ? -1 : found->second;
    }

    void Describe(OBLOB &blob) const;

private:
    HWND window_;
    CPicArray *pics_ = nullptr;
    CFontArray *fonts_ = nullptr;
    std::unordered_map<PIC *, int32_t> picIndex_;
    std::unordered_map<HFONT, int32_t> fontIndex_;
};

// A font as selected in a client DC of the list; a slot whose handle is no
// font is saved as an empty record, so that the indices after it hold.
OBFONT FontRecord(HDC dc, HFONT font) {
    OBFONT record;
    LOGFONTW logical{};
    if (!font || GetObjectW(font, sizeof(logical), &logical) != sizeof(logical))
        return record;
    TEXTMETRICW metrics{};
    if (dc) {
        HGDIOBJ old = SelectObject(dc, font);
        if (old) {
            if (GetTextMetricsW(dc, &metrics))
                record.points = static_cast<uint16_t>(
                    MulDiv(metrics.tmHeight - metrics.tmInternalLeading, 72, GetDeviceCaps(dc, LOGPIXELSY)));
            SelectObject(dc, old);
        }
    }
    record.styleBits = static_cast<uint16_t>((logical.lfItalic ? 2 : 0) | (logical.lfUnderline ? 4 : 0) |
                                             (logical.lfWeight >= FW_BOLD ? 8 : 0) | (logical.lfStrikeOut ? 16 : 0));
    const size_t length = wcsnlen(logical.lfFaceName, LF_FACESIZE);
    record.faceName.assign(reinterpret_cast<const char16_t *>(logical.lfFaceName), length);
    return record;
}

void Registries::Describe(OBLOB &blob) const {
    blob.pics.reserve(static_cast<size_t>(pics_->Count()));
    for (int i = 0; i < pics_->Count(); ++i) {
        OBPIC record;
        // A picture freed behind the registry's back keeps its place, empty.
        if (PIC *pic = pics_->At(i); pic && PicIsLive(pic)) {
            record.flags = pic->flags;
            record.source.assign(LbxU16(pic->source.c_str()), pic->source.size());
            record.name.assign(LbxU16(pic->name.c_str()), pic->name.size());
        }
        blob.pics.push_back(std::move(record));
    }
    HDC dc = GetDC(window_);
    try {
        for (int i = 0; i < fonts_->Count(); ++i)
            blob.fonts.push_back(FontRecord(dc, fonts_->At(i)));
    } catch (...) {
        if (dc)
            ReleaseDC(window_, dc);
        throw;
    }
    if (dc)
        ReleaseDC(window_, dc);
}

// The bytes into a new host string of one byte more, which ends in NUL.
bool GiveOut(const std::vector<uint8_t> &bytes, HostStr *out) {
    if (bytes.size() >= static_cast<size_t>(INT32_MAX))
        return false;
    const auto size = static_cast<int32_t>(bytes.size() + 1);
    if (!HostStrAlloc(out, size))
        return false;
    int32_t locked = 0;
    auto *buffer = reinterpret_cast<uint8_t *>(HostStrLock(*out, &locked));
    if (!buffer || locked != size)
        return false;
    std::memcpy(buffer, bytes.data(), bytes.size());
    buffer[bytes.size()] = 0;
    return true;
}

} // namespace

int32_t Save(HWND window, HostStr *out) {
    LbxChild child{};
    if (!LbxGetChildCopy(window, &child))
        return ZEL_INVALID_PARAMETER;
    // No slot for the result: refused before the registries grow.
    LbxNode *root = LbxGetRoot(window);
    if (!root || !out)
        return ZEL_NOT_ENOUGH_MEMORY;
    try {
        Registries registries(window);
        if (!registries.Open())
            throw MemoryException();
        OutlineWalk(root, [&](LbxNode *node) {
            if (const LbxItem *item = node->item) {
                registries.AddPicture(item->picNormal);
                registries.AddPicture(item->picSelected);
                registries.AddFont(static_cast<HFONT>(item->font));
            }
        });
        OBLOB blob;
        blob.style = child.style;
        blob.indent = static_cast<uint32_t>(child.indent);
        const bool combo = ControlKind(window) == LbxKind::Combo;
        blob.topIndex = combo ? 0 : static_cast<int32_t>(SendMessageW(window, LB_GETTOPINDEX, 0, 0));
        registries.Describe(blob);
        OutlineCollect(
            root, blob.items, [&](PIC *pic) { return registries.PictureIndex(pic); },
            [&](void *font) { return registries.FontIndex(font); });
        if (!GiveOut(OutlineWrite(blob), out))
            throw MemoryException();
        return 0;
    } catch (...) {
        FreeRegistries(window);
        return ZEL_NOT_ENOUGH_MEMORY;
    }
}

} // namespace zk::lbx::ofile
