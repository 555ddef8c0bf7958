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
    EXPECT_EQ((Lines{L"ZelStrScanReverse() - Unhandled exception in function '%1'.", L"second"}),
              capture.lines());
    EXPECT_EQ(L"ZelStrScanReverse() - Unhandled exception in function '%1'.\nsecond\r\nthird",
              capture.text());
    EXPECT_EQ(5u, capture.calls());
    capture.clear();
    EXPECT_TRUE(capture.lines().empty());
    EXPECT_EQ(0u, capture.calls());
}

TEST(DebugOutputCapture, TakesNarrowOutputAndEmptyPieces) {
    zkt::DebugOutputCapture capture;
    OutputDebugStringA("narrow\n");
    OutputDebugStringW(L"");
    OutputDebugStringW(L"caf\u00e9\n"); // in the ANSI code page
    EXPECT_EQ((Lines{L"narrow", L"caf\u00e9"}), capture.lines());
    EXPECT_EQ(3u, capture.calls());
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

DWORD WINAPI printFromThread(void *) {
    OutputDebugStringW(L"from another thread\n");
    return 0;
}

TEST(DebugOutputCapture, SeesOtherThreads) {
    zkt::DebugOutputCapture capture;
    HANDLE thread = CreateThread(nullptr, 0, printFromThread, nullptr, 0, nullptr);
    ASSERT_NE(nullptr, thread);
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(thread, 10000));
    CloseHandle(thread);
    EXPECT_EQ((Lines{L"from another thread"}), capture.lines());
}

TEST(DebugOutputCapture, InnermostCaptureReceivesAndOutputAfterTheEndIsNotSeen) {
    zkt::DebugOutputCapture outer;
    OutputDebugStringW(L"one\n");
    {
        zkt::DebugOutputCapture inner;
        OutputDebugStringW(L"two\n");
        EXPECT_EQ((Lines{L"two"}), inner.lines());
    }
    OutputDebugStringW(L"three\n");
    EXPECT_EQ((Lines{L"one", L"three"}), outer.lines());
}

TEST(DebugOutputCapture, NoCaptureMeansOutputGoesOnAsUsual) {
    {
        zkt::DebugOutputCapture capture;
    }
    OutputDebugStringW(L"nobody listens\n"); // must return normally
    zkt::DebugOutputCapture later;
    EXPECT_TRUE(later.lines().empty());
}

} // namespace
