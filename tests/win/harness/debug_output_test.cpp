// Capturing OutputDebugString output.
#include "zkharness.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::wstring>;

TEST(DebugOutputCapture, JoinsPiecesIntoLines) {
    zkt::DebugOutputCapture capture;
    // The shape of a caught-exception trace: four pieces, one line.
    OutputDebugStringW(L"ZelStrScanReverse()");
    OutputDebugStringW(L" - ");
    OutputDebugStringW(L"Unhandled exception in function '%1'.");
    OutputDebugStringW(L"\n");
    OutputDebugStringW(L"second\r\nthird");
    EXPECT_EQ((Lines{L"ZelStrScanReverse() - Unhandled exception in function '%1'.", L"second"}), capture.lines());
    EXPECT_EQ(L"ZelStrScanReverse() - Unhandled exception in function '%1'.\nsecond\r\nthird", capture.text());
    EXPECT_EQ(5u, capture.calls());
    capture.clear();
    EXPECT_TRUE(capture.lines().empty());
    EXPECT_EQ(0u, capture.calls());
}

using Print = void(WINAPI *)(const wchar_t *);

TEST(DebugOutputCapture, SeesCallsThroughAnyModuleImport) {
    // A DLL's import may bind to kernelbase or kernel32: both are seen, as the
    // capture does not depend on who calls.
    zkt::DebugOutputCapture capture;
    for (const wchar_t *module : {L"kernelbase.dll", L"kernel32.dll"}) {
        const auto print = reinterpret_cast<Print>(
            reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(module), "OutputDebugStringW")));
        ASSERT_NE(nullptr, print) << module;
        print(module);
        print(L"\n");
    }
    EXPECT_EQ((Lines{L"kernelbase.dll", L"kernel32.dll"}), capture.lines());
}

} // namespace
