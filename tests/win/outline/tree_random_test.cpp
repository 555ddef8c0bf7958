// Long seeded sequences of tree operations through the exports, with the
// consistency check after every step: the tree must always be intact. After
// the operations whose rows follow rules of their own (see edit_test.cpp,
// drag_test.cpp) the walk rebuilds the rows with ZelListShowOutline, as an
// application would, and checks again.
#include "tree_fixture.h"

#include <cstdint>
#include <random>
#include <sstream>
#include <vector>

namespace {

using namespace treetest;

struct Walker : OutlineFixture {
    std::mt19937 rng;
    HWND other = nullptr;
    int made = 0;

    uint32_t Pick(uint32_t n) { return n ? static_cast<uint32_t>(rng() % n) : 0; }
    int Count() { return static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0)); }
    int32_t AnyRow() { return static_cast<int32_t>(Pick(static_cast<uint32_t>(Count()))); }

    std::vector<LbxNode *> Nodes() { return Walk(reinterpret_cast<LbxNode *>(root)); }

    bool SubtreeHasRow(LbxNode *node) {
        if (ZelListGetItemIndex(reinterpret_cast<H>(node)) >= 0)
            return true;
        for (LbxNode *c = node->firstChild; c; c = c->next)
            if (SubtreeHasRow(c))
                return true;
        return false;
    }

    // Whether a hidden node has a child not marked hidden: showing all but
    // hidden nodes then gives that child a row without its parent's.
    bool HiddenAboveShown() {
        for (LbxNode *n : Nodes()) {
            if (!(n->item->flags & LBX_ItemHidden))
                continue;
            for (LbxNode *c = n->firstChild; c; c = c->next)
                if (!(c->item->flags & LBX_ItemHidden))
                    return true;
        }
        return false;
    }

    // The rows rebuilt from the tree: hidden nodes kept hidden where that
    // cannot strand a row, else everything shown.
    void Rebuild() {
        ZelListShowOutline(list, HiddenAboveShown() ? LBX_ShowEverything : LBX_ShowAllButHidden);
        tolerance.pending.clear();
    }

    // One operation; what it was, for the failure message. `rowsMayLag` is
    // set for the operations whose rows may be left out of step.
    std::string Step(bool &rowsMayLag) {
        rowsMayLag = false;
        std::ostringstream what;
        const std::vector<LbxNode *> nodes = Nodes();
        const H any = nodes.empty() ? root : reinterpret_cast<H>(nodes[Pick(static_cast<uint32_t>(nodes.size()))]);
        const uint32_t op = Pick(19);
        const int32_t row = AnyRow();
        switch (op) {
        case 0:
        case 1:
        case 2: {
            if (nodes.size() > 120)
                break;
            const H parent = Pick(4) == 0 ? root : any;
            const std::wstring text = L"n" + std::to_wstring(++made);
            const H h = ZelListLoadChild(list, parent, 0, 0, text.c_str(), made, 0);
            tolerance.pending.insert(reinterpret_cast<const LbxNode *>(h));
            what << "LoadChild " << made;
            break;
        }
        case 3:
            if (any != root && nodes.size() <= 120) {
                ZelListLoadSibling(list, any, 0, 0, L"sib", ++made, 0);
                what << "LoadSibling";
            }
            break;
        case 4: {
            const int32_t levels[] = {0, 1, 2, 32766, 32767, 32767};
            const int32_t level = levels[Pick(6)];
            rowsMayLag = level == LBX_ShowAllButHidden && HiddenAboveShown();
            ZelListShowOutline(list, level);
            tolerance.pending.clear();
            what << "ShowOutline " << level;
            break;
        }
        case 5:
            what << "Expand " << row << " = " << ZelListExpand(list, row);
            break;
        case 6:
            what << "Collapse " << row << " = " << ZelListCollapse(list, row);
            break;
        case 7:
            rowsMayLag = true;
            what << "ExpandDescendents " << row << " = " << ZelListExpandDescendents(list, row);
            break;
        case 8:
            if (Pick(3) == 0)
                what << "DeleteChild " << row << " = " << ZelListDeleteChild(list, row);
            else
                what << "DeleteDescendents " << row << " = " << ZelListDeleteDescendents(list, row);
            break;
        case 9:
            rowsMayLag = true;
            what << "Demote " << row << " = " << ZelListDemote(list, row, 0, 0);
            break;
        case 10:
            rowsMayLag = true;
            what << "Promote " << row << " = " << ZelListPromote(list, row, 0, 0);
            break;
        case 11:
            rowsMayLag = true;
            what << "MoveUp " << row << " = " << ZelListMoveUp(list, row);
            break;
        case 12:
            rowsMayLag = true;
            what << "MoveDown " << row << " = " << ZelListMoveDown(list, row);
            break;
        case 13:
        case 14: {
            const int32_t to = AnyRow();
            const H source = ZelListGetItemHandle(list, row);
            const uint16_t mode = static_cast<uint16_t>(Pick(6) == 0 ? 0 : 1 + Pick(2));
            rowsMayLag = true;
            what << "DragDrop " << row << " -> " << to << " mode " << mode << " = "
                 << ZelListDragDrop(list, row, list, to, mode);
            // A drop on its own descendant that stops half way keeps the bit.
            if (source)
                tolerance.childBitFree.insert(reinterpret_cast<const LbxNode *>(source));
            break;
        }
        case 15:
            if (const H h = ZelListGetItemHandle(list, row)) {
                what << "SetItemFlags hidden " << row << " = " << ZelListSetItemFlags(h, LBX_ItemHidden, 1);
            }
            break;
        case 16:
            if (const H h = ZelListGetItemHandle(list, row)) {
                what << "SetItemFlags clear 1 " << row << " = " << ZelListSetItemFlags(h, 1, 0);
            }
            break;
        case 17:
            if (any != root && (ZelListGetItemFlags(any) & LBX_ItemHidden)) {
                rowsMayLag = true;
                what << "SetItemFlags show " << TextOf(any).size() << " = " << ZelListSetItemFlags(any, 0x0100, 1);
            }
            break;
        case 18:
            if (any != root && !SubtreeHasRow(reinterpret_cast<LbxNode *>(any))) {
                what << "FreeChild = " << ZelListFreeChild(any);
            } else {
                what << "Expand root = " << ZelListExpand(list, -1);
            }
            break;
        }
        SettlePending(tolerance);
        return what.str();
    }

    void Run(uint32_t seed, int steps) {
        rng.seed(seed);
        for (int i = 0; i < 12; ++i)
            Load(i % 3 ? reinterpret_cast<H>(Nodes().back()) : root, L"seed");
        ZelListShowOutline(list, LBX_ShowEverything);
        tolerance.pending.clear();
        // Connector patterns are left to the operations' own rules.
        tolerance.connectors = false;
        std::vector<std::string> recent;
        int rebuilt = 0;
        for (int step = 0; step < steps; ++step) {
            bool rowsMayLag = false;
            recent.push_back(Step(rowsMayLag));
            if (recent.size() > 6)
                recent.erase(recent.begin());
            std::string fault = CheckTree(list, tolerance);
            if (fault.empty() && rowsMayLag && !CheckRows(list, tolerance).empty()) {
                Rebuild();
                ++rebuilt;
                recent.back() += " (rows rebuilt)";
            }
            if (fault.empty())
                fault = CheckRows(list, tolerance);
            if (!fault.empty()) {
                std::string trail;
                for (const auto &r : recent)
                    trail += "\n  " + r;
                FAIL() << "seed " << seed << " step " << step << ": " << fault << "\nlast steps:" << trail << "\n"
                       << DumpOutline(list);
            }
        }
        RecordProperty("rebuilt", rebuilt);
    }
};

TEST_F(Walker, Seed1) { Run(1, 900); }
TEST_F(Walker, Seed2) { Run(2, 900); }
TEST_F(Walker, Seed3) { Run(3, 900); }
TEST_F(Walker, Seed4) { Run(4, 900); }

} // namespace
