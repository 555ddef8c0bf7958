// ZelPicLoad: the plan of the core, then one of the four sources; and ZelPicFree.
#include <cwchar>
#include <memory>

#include "frame/win/guard.h"
#include "frame/win/registry.h"
#include "outline/win/pic_sources.h"

namespace zk::lbx {

namespace {

// The first argument of a load from memory is image bytes read as text
// (the extension rule and the record see it so); it is read no further
// than memory goes.
std::wstring SourceText(const wchar_t *source, uint16_t flags) {
    if (!source)
        return {};
    if (!(flags & kPicLoadMemory))
        return source;
    constexpr size_t kMostChars = 4096;
    const size_t chars = PicReadableBytes(source, kMostChars * sizeof(wchar_t)) / sizeof(wchar_t);
    return std::wstring(source, wcsnlen(source, chars));
}

std::u16string_view View(const std::wstring &text) {
    return {reinterpret_cast<const char16_t *>(text.data()), text.size()};
}

} // namespace

PIC *PicLoad(uint16_t flags, const wchar_t *source, const wchar_t *name) {
    const std::wstring sourceText = SourceText(source, flags);
    const PicPlan plan = PicPlanLoad(flags, View(sourceText), IconWidth, IconHeight);
    auto pic = std::make_unique<PIC>();
    pic->flags = plan.flags;
    pic->source = sourceText;
    pic->name = name ? name : L"";
    bool ok = true;
    switch (plan.source) {
    case PicSource::None:
        break; // the empty picture
    case PicSource::Module:
        ok = PicFromModule(*pic, plan);
        break;
    case PicSource::File:
        ok = PicFromFile(*pic, plan);
        break;
    case PicSource::Resource:
        ok = PicFromResource(*pic, plan);
        break;
    case PicSource::Memory:
        ok = PicFromPointer(*pic, plan, source);
        break;
    }
    return ok ? pic.release() : nullptr;
}

} // namespace zk::lbx
