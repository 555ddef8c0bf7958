// The check that rows and tree of an outline list agree, run after every
// operation of the tree tests.
#pragma once

#include <windows.h>

#include <set>
#include <string>
#include <vector>

#include "list_support.h"
#include "outline/core/lbx.h"

using namespace zk::lbx;

namespace treetest {

struct Tolerance {
    // Nodes loaded but not shown yet: they (and their subtrees) may lack
    // rows that their flags call for, until something shows them.
    std::set<const LbxNode *> pending;
    // Nodes whose LBX_ItemLeftLine follows the level they were dragged from.
    std::set<const LbxNode *> leftLineByOldLevel;
    // Whether connector bits must match each node's place. Moving, promoting,
    // demoting, lifting and loading siblings leave patterns of their own.
    bool connectors = true;
    // Nodes whose connector bits are not checked.
    std::set<const LbxNode *> connectorsFree;
    // Nodes whose LBX_ItemHasChildren may be left from children they lost.
    std::set<const LbxNode *> childBitFree;
};

using outlinetest::Walk;

// Links, levels, LBX_ItemHasChildren and (as the tolerance says) connector
// bits of every node. Empty when all agree, else the first fault.
std::string CheckTree(HWND list, const Tolerance &tolerance = {});

// The rows: exactly the shown nodes in pre-order, none hidden, each of this
// window under a shown expanded parent, and every node such a parent shows
// has its row. Empty or the first fault.
std::string CheckRows(HWND list, const Tolerance &tolerance = {});

std::string CheckOutline(HWND list, const Tolerance &tolerance = {}); // both
std::string DumpOutline(HWND list);                                   // tree, flags and rows for failure messages

// Drops from `pending` the nodes that have rows now, and those freed.
void SettlePending(Tolerance &tolerance);

} // namespace treetest

// After every step: the list must be consistent.
#define EXPECT_CONSISTENT(list, ...)                                                                                   \
    do {                                                                                                               \
        const std::string fault_ = ::treetest::CheckOutline(list, ##__VA_ARGS__);                                      \
        EXPECT_TRUE(fault_.empty()) << fault_;                                                                         \
    } while (0)
