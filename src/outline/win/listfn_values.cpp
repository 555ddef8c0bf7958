// Values beside rows, and the two searches.
#include <cstdint>

#include "outline/core/listfn_walk.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/listfn_target.h"
#include "outline/win/win_rows.h"

namespace zk::lbx {

namespace {

// A text the list can read: the platform's lists do not all take a null one.
const wchar_t *Readable(const wchar_t *text) { return text ? text : L""; }

class MessageValues final : public ValueRows {
public:
    explicit MessageValues(const LbxTarget &target) : target_(target) {}
    int32_t Value(int32_t row) override {
        return static_cast<int32_t>(target_.Send(LB_GETITEMDATA, CB_GETITEMDATA, static_cast<WPARAM>(row)));
    }

private:
    const LbxTarget &target_;
};

} // namespace

int32_t LbxAddValue(const LbxTarget &target, int32_t row, const wchar_t *text, int32_t value) {
    const LPARAM textWord = reinterpret_cast<LPARAM>(Readable(text));
    const LRESULT added = row == -2 ? target.Send(LB_ADDSTRING, CB_ADDSTRING, 0, textWord)
                                    : target.Send(LB_INSERTSTRING, CB_INSERTSTRING, static_cast<WPARAM>(row), textWord);
    if (added < 0) {
        return static_cast<int32_t>(added);
    }
    // The value is a signed 32-bit word: widened with its sign, as the host reads it back.
    const LRESULT set =
        target.Send(LB_SETITEMDATA, CB_SETITEMDATA, static_cast<WPARAM>(added), static_cast<LPARAM>(value));
    return set == LB_ERR ? -1 : static_cast<int32_t>(added);
}

int32_t FindValue(const LbxTarget &target, int32_t start, int32_t value) {
    MessageValues rows(target);
    return FindValueWalk(rows, target.Count(), start, value);
}

} // namespace zk::lbx
