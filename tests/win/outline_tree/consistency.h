// The check that rows and tree of an outline list agree, run after every
// operation of the tree tests.
#pragma once

#include <windows.h>

#include <set>
#include <string>

#include "outline/lbx.h"

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

// Links, levels, LBX_ItemHasChildren and (as the tolerance says) connector
// bits of every node. Empty when all agree, else the first fault.
std::string CheckTree(HWND list, const Tolerance &tolerance = {});

// The rows: exactly the shown nodes of the tree in pre-order, none hidden,
// each of this window, each under a shown parent marked expanded, and every
// node that such a parent shows has its row. Empty or the first fault.
std::string CheckRows(HWND list, const Tolerance &tolerance = {});

// Both checks.
std::string CheckOutline(HWND list, const Tolerance &tolerance = {});

// The tree with levels, flags and rows, for failure messages.
std::string DumpOutline(HWND list);

// Drops from `pending` the nodes that have rows now, and those freed.
void SettlePending(HWND list, Tolerance &tolerance);

} // namespace treetest

// After every step: the list must be consistent.
#define EXPECT_CONSISTENT(list, ...)                                                        \
    do {                                                                                    \
        const std::string fault_ = ::treetest::CheckOutline(list, ##__VA_ARGS__);           \
        EXPECT_TRUE(fault_.empty()) << fault_;                                              \
    } while (0)
