#include "zkt_debug_output.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zkt {
namespace {

constexpr DWORD kPrintWide = 0x4001000A;   // DBG_PRINTEXCEPTION_WIDE_C
constexpr DWORD kPrintNarrow = 0x40010006; // DBG_PRINTEXCEPTION_C

// The captures alive, innermost last, and the one handler they share. The
// handler may run on any thread, hence the lock.
std::mutex activeLock;
std::vector<DebugOutputCapture *> captures;
void *handler = nullptr;

std::wstring widen(const char *text, size_t length) {
    if (!length) {
        return std::wstring();
    }
    const int n = MultiByteToWideChar(CP_ACP, 0, text, static_cast<int>(length), nullptr, 0);
    std::wstring out(static_cast<size_t>(n > 0 ? n : 0), L'\0');
    if (n > 0) {
        MultiByteToWideChar(CP_ACP, 0, text, static_cast<int>(length), out.data(), n);
    }
    return out;
}

LONG CALLBACK printHandler(EXCEPTION_POINTERS *info) {
    const EXCEPTION_RECORD *record = info->ExceptionRecord;
    const DWORD code = record->ExceptionCode;
    if ((code != kPrintWide && code != kPrintNarrow) || record->NumberParameters < 2) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    // The first parameter counts the terminator as well.
    const size_t count = static_cast<size_t>(record->ExceptionInformation[0]);
    const ULONG_PTR address = record->ExceptionInformation[1];
    std::wstring piece;
    if (address && count) {
        if (code == kPrintWide) {
            const auto *text = reinterpret_cast<const wchar_t *>(address);
            piece.assign(text, wcsnlen(text, count));
        } else {
            const auto *text = reinterpret_cast<const char *>(address);
            piece = widen(text, strnlen(text, count));
        }
    }
    std::lock_guard<std::mutex> guard(activeLock);
    if (captures.empty()) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    captures.back()->append(piece);
    return EXCEPTION_CONTINUE_EXECUTION;
}

} // namespace

DebugOutputCapture::DebugOutputCapture() {
    std::lock_guard<std::mutex> guard(activeLock);
    if (!handler) {
        handler = AddVectoredExceptionHandler(1, printHandler);
        if (!handler) {
            ADD_FAILURE() << "AddVectoredExceptionHandler failed";
        }
    }
    captures.push_back(this);
}

DebugOutputCapture::~DebugOutputCapture() {
    std::lock_guard<std::mutex> guard(activeLock);
    captures.erase(std::remove(captures.begin(), captures.end(), this), captures.end());
    if (captures.empty() && handler) {
        RemoveVectoredExceptionHandler(handler);
        handler = nullptr;
    }
}

void DebugOutputCapture::append(const std::wstring &piece) {
    std::lock_guard<std::mutex> guard(lock_);
    text_ += piece;
    ++calls_;
}

std::wstring DebugOutputCapture::text() const {
    std::lock_guard<std::mutex> guard(lock_);
    return text_;
}

std::vector<std::wstring> DebugOutputCapture::lines() const {
    std::lock_guard<std::mutex> guard(lock_);
    std::vector<std::wstring> out;
    size_t start = 0;
    for (size_t end = text_.find(L'\n'); end != std::wstring::npos; end = text_.find(L'\n', start)) {
        size_t stop = end;
        if (stop > start && text_[stop - 1] == L'\r') {
            --stop;
        }
        out.push_back(text_.substr(start, stop - start));
        start = end + 1;
    }
    return out;
}

std::size_t DebugOutputCapture::calls() const {
    std::lock_guard<std::mutex> guard(lock_);
    return calls_;
}

void DebugOutputCapture::clear() {
    std::lock_guard<std::mutex> guard(lock_);
    text_.clear();
    calls_ = 0;
}

} // namespace zkt
