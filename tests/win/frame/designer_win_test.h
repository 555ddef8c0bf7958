// Shared pieces of the control frame's tests: a control of the family made
// by the bootstrap, test classes registered as the library registers its
// outer classes, and a host that binds new windows to design items.
#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <array>
#include <vector>

#include "frame/win/control_create.h"
#include "frame/win/generic_control.h"
#include "frame/win/prop_block.h"
#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"

namespace designertest {

// The smallest control of the family: records what the frame asks of it.
class TestControl : public zk::CGenericControl {
public:
    TestControl() { ++constructed; }
    ~TestControl() override { ++destroyed; }

    static inline int constructed = 0;
    static inline int destroyed = 0;

    std::vector<int> sizeToFit; // arguments of SizeToFit, in order
    int recalcMetrics = 0;

    void SizeToFit(int autoSizeFlag) override { sizeToFit.push_back(autoSizeFlag); }
    void RecalcFrame() override {}
    void RecalcMetrics() override {
        ++recalcMetrics;
        CGenericControl::RecalcMetrics();
    }

    int32_t &AutoSize() { return autoSize; }
    int32_t &PopUp() { return popUp; }
    int32_t &Created() { return created; }
    int32_t Flags(int which) const {
        const int32_t all[] = {autoSize, thirdFlag, popUp, fourthFlag, fifthFlag, sixthFlag};
        return all[which];
    }
    // A table of a derived class's own, for roles that follow others.
    void UseRoleTable(const std::array<uint16_t, kRoleCount> &table) { roles = zk::RoleColors<kRoleCount>(table); }
};

// A wrapper that loads its block at WM_CREATE, as the host-created classes do.
class WrapperControl : public TestControl {
public:
    bool loaded = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

// Test classes, registered once with a procedure that hands every message to
// the bootstrap, the way the library's start-up registers its outer classes.
inline constexpr const wchar_t *kSubclassClass = L"ZKTest:cGeneric:10"; // subclass-or-attach form
inline constexpr const wchar_t *kKeepClass = L"ZKTest:cKeep:10";        // keeps its procedure
inline constexpr const wchar_t *kFailingClass = L"ZKTest:cFailing:10";  // the object cannot be made
inline constexpr const wchar_t *kFailingKeepClass = L"ZKTest:cFailKeep:10";
inline constexpr const wchar_t *kWrapperClass = L"ZKTest:cWrapper:10";
// A class of the host over kSubclassClass: it keeps the pointer announced.
inline constexpr const wchar_t *kHostClass = L"ZKTestHost:Generic";
void RegisterTestClasses();

// The pointer the host class kept for a window (0 until announced).
LPARAM HostKeptPointer(HWND window);

// A child control of a class on a parent, with an id.
HWND MakeControl(const wchar_t *className, HWND parent, int id = 7, void *parameter = nullptr,
                 DWORD style = WS_CHILD | WS_VISIBLE);

// While alive, every window created on this thread is bound, before its
// first message, to the given item of the outline.
class BindNewWindows {
public:
    BindNewWindows(HostOutline outline, HostItem item);
    ~BindNewWindows();

private:
    HHOOK hook_ = nullptr;
};

} // namespace designertest
