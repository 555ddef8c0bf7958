// The menu extensions' records: the block one frame window holds under
// "ZK:Menu", the packed record of each item the library added or changed,
// the stack of ids given back by deletion, and the rules that read an
// item argument (selector) and an item text.
//
// Portable: platform handles (menus, local blocks, fonts, the replaced
// window procedure) are held as void pointers; the Win32 side converts them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "zklib/menu.h" // ZKM_MenuCommand, ZKM_MenuClear

namespace zk::lbx {
struct PIC;
}

namespace zk::menu {

using lbx::PIC;

// Bit 0 of MenuRecord::flags: the item is the application's, and a command
// on it is reported to the host.
inline constexpr uint16_t kRecordReported = 0x0001;
// The top bit of ZelMenuInsert's flags: the frame does not attach its menu
// again for this item.
inline constexpr uint16_t kInsertNoAttach = 0x8000;
// Records are allocated ten at a time.
inline constexpr int32_t kRecordStep = 10;

#pragma pack(push, 1)
struct MenuRecord {
    void *menu;           // HMENU holding the item
    int32_t id;           // its command id
    uint16_t flags;       // kRecordReported
    void *text;           // HLOCAL of the wide text, or 0
    PIC *picture;         // normal state; not owned
    PIC *selectedPicture; // selected state; not owned
    void *font;           // HFONT; not owned
};
#pragma pack(pop)
static_assert(sizeof(void *) != 4 || sizeof(MenuRecord) == 26, "the record is packed: 26 bytes on 32 bits");

class CMenuStack;

struct MenuBlock {
    void *oldProc;       // WNDPROC the subclass replaced
    int32_t lastId;      // highest command id known
    void *records;       // HLOCAL of `capacity` MenuRecord
    int32_t count;       // records in use
    int32_t capacity;    // records allocated
    CMenuStack *freeIds; // ids given back by deletion
};
static_assert(sizeof(void *) != 4 || sizeof(MenuBlock) == 24, "the block is 24 bytes on 32 bits");

// One id given back by deletion.
class CMenuIDData {
public:
    explicit CMenuIDData(uint32_t id) : id_(id) {}
    virtual ~CMenuIDData() = default;
    uint32_t Id() const { return id_; }

private:
    uint32_t id_;
};

// The free ids, head first; owns its elements.
class CMenuStack {
public:
    CMenuStack() = default;
    ~CMenuStack() { RemoveAll(); }
    CMenuStack(const CMenuStack &) = delete;
    CMenuStack &operator=(const CMenuStack &) = delete;

    bool IsEmpty() const { return items_.empty(); }
    size_t Count() const { return items_.size(); }
    // The head's id; the stack must not be empty.
    int32_t Head() const { return static_cast<int32_t>(items_.back()->Id()); }
    // Can throw std::bad_alloc, with the stack unchanged.
    void AddHead(int32_t id);
    void RemoveHead();
    void RemoveAll();

private:
    std::vector<CMenuIDData *> items_; // head last
};

// ---- selectors ------------------------------------------------------------

// 0 to 1023 name a position; anything else (1024 and above, or the host's
// negative range) names a command id.
inline bool IsPosition(int32_t selector) { return selector >= 0 && selector < 1024; }
// ZelMenuInsert and its two companions: -1 and above go by position (so -1
// appends), below -1 is a command id.
inline bool InsertsByPosition(int32_t position) { return position >= -1; }

// ---- texts ----------------------------------------------------------------

// The first occurrence of the two characters backslash and t becomes one tab.
std::u16string ReplaceTabMark(std::u16string_view text);
// The part before the first tab and the part after it (empty when none).
struct TabParts {
    std::u16string_view before;
    std::u16string_view after;
    bool hasTab = false;
};
TabParts SplitAtTab(std::u16string_view text);
// Whether the character after the first "&" is `lower` or `upper`.
bool MnemonicMatches(std::u16string_view text, char16_t lower, char16_t upper);

// ---- the record table -------------------------------------------------------

// Index of the record of (menu, id), or -1.
int32_t FindRecord(const MenuRecord *records, int32_t count, const void *menu, int32_t id);
// Index of the first record of an id in any menu, or -1.
int32_t FindRecordById(const MenuRecord *records, int32_t count, int32_t id);
// Closes the gap at `index`; the count is the caller's to lower.
void RemoveRecord(MenuRecord *records, int32_t count, int32_t index);

// The ids of the application's records that a command with this low word
// names, in record order.
std::vector<int32_t> CommandTargets(const MenuRecord *records, int32_t count, uint16_t low);

} // namespace zk::menu
