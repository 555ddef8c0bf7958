// Date-times as text: formatting by picture into a host string, parsing,
// and the validity tests of texts and pictures.
#include "core/hostnum.h"
#include "guard.h"
#include "strstore.h"
#include "text16.h"
#include "zkhost.h"

using namespace hostwin;

namespace {

constexpr char16_t kDefaultPicture[] = u"yyyy-MM-dd-hh.mm.ss.mmmmmm";

} // namespace

extern "C" {

// A null date formats as the empty text. The one reference of the new
// string goes to the slot when there is one, else to the caller.
HostStr ZKAPI HostDateToStr(HostDateTime value, const wchar_t *picture, HostStr *slot) {
    return Guard<HostStr>(0, [&] {
        value.length &= 0x0F;
        std::u16string text;
        if (!zkh::DateIsNull(value))
            text = zkh::DateFormat(value, picture ? ToCore(picture) : std::u16string_view(kDefaultPicture));
        HostStr handle = StrFromText(ToWide(text));
        if (handle && slot)
            StrStore(slot, handle);
        return handle;
    });
}

HostDateTime *ZKAPI HostStrToDate(HostDateTime *out, const wchar_t *text) {
    if (!out)
        return out;
    *out = Guard(HostDateTime{}, [&] {
        HostDateTime parsed{};
        return text && zkh::DateParse(ToCore(text), parsed) ? parsed : HostDateTime{};
    });
    return out;
}

int32_t ZKAPI HostStrIsValidDateTime(const wchar_t *text) {
    return Guard<int32_t>(0, [&] {
        HostDateTime parsed{};
        return text && zkh::DateParse(ToCore(text), parsed) ? 1 : 0;
    });
}

// The reference host knows date-time pictures only (kind 1); a picture of
// any other kind is never valid here.
int32_t ZKAPI HostStrIsValidPicture(const wchar_t *text, int32_t dateTime) {
    return Guard<int32_t>(0, [&] { return text && dateTime == 1 && zkh::PictureIsValid(ToCore(text)) ? 1 : 0; });
}

} // extern "C"
