// What the menu tests share: a host frame's menu with items of every kind,
// reading what a host frame was asked to do, pictures made in memory, and a
// fixture that checks nothing of the menu extensions outlives its windows.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace menutest {

// Command ids of the frame menu. Ids below 1024 would read as positions.
enum : int32_t {
    kNew = 0xE100,
    kOpen = 0xE101,
    kExit = 0xE141,
    kUndo = -5, // the host's own range
    kCopy = 0xE122,
    kNewWindow = 0xE130, // makes "&Window" an MDI frame's Windows menu
    kHelp = 0xE146,
};

// "&File" (New, Open, separator, Exit), "&Edit" (Undo, Copy), "&Window"
// (New Window) and the command "&Help"; the highest id is kHelp.
struct FrameMenu {
    HMENU bar = nullptr;
    HMENU file = nullptr;
    HMENU edit = nullptr;
    HMENU window = nullptr;
};
FrameMenu MakeFrameMenu();

// The log of a host window, emptied, one entry per line.
std::vector<std::wstring> TakeLog(HWND window);
// Text of a host string, which is released.
std::wstring Take(HostStr text);
// The platform's text of an item by position or command.
std::wstring PlatformText(HMENU menu, UINT item, UINT by);

// GDI objects of the process, from the shared handle table.
int GdiObjects();
// Blocks in use on the process heap, where local memory comes from.
int HeapBlocks();

// Tests that make menus on windows: whatever the menu extensions hold
// (local blocks, kept bitmaps, GDI objects) is back to where it was once a
// test's windows are gone.
class MenuTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    // A window destroyed at the end of the test, unless it is gone by then.
    HWND Keep(HWND window);
    HWND Frame(int32_t kind, HMENU menu, uint32_t options = 0, HWND parent = nullptr);
    // A picture of size x size: a square of `ink` on white, white (its
    // top-left colour) painting transparent; freed at the end of the test.
    ZelPicHandle Picture(COLORREF ink, int size = 16);

private:
    std::vector<HWND> windows_;
    std::vector<ZelPicHandle> pictures_;
};

} // namespace menutest
