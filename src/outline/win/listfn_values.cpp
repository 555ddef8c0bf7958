// Values beside rows, and the two searches.
#include <cstdint>

#include "outline/core/listfn_walk.h"
#include "outline/win/listfn_target.h"
#include "outline/win/win_rows.h"

namespace {

// A text the list can read: the platform's lists do not all take a null one.
const wchar_t *Readable(const wchar_t *text) { return text ? text : L""; }

class MessageValues final : public LbxValueRows {
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

extern "C" {

int32_t ZKAPI ZelListAddValue(HWND window, const wchar_t *text, int32_t value) {
    return LbxWithTarget(window, -1, [&](const LbxTarget &t) { return LbxAddValue(t, -2, text, value); });
}

int32_t ZKAPI ZelListInsertValue(HWND window, int32_t row, const wchar_t *text, int32_t value) {
    return LbxWithTarget(window, -1, [&](const LbxTarget &t) { return LbxAddValue(t, row, text, value); });
}

int32_t ZKAPI ZelListGetValue(HWND window, int32_t row) {
    return LbxWithTarget(window, -1, [&](const LbxTarget &t) {
        return static_cast<int32_t>(t.Send(LB_GETITEMDATA, CB_GETITEMDATA, static_cast<WPARAM>(row)));
    });
}

int32_t ZKAPI ZelListSetValue(HWND window, int32_t row, int32_t value) {
    return LbxWithTarget(window, -1, [&](const LbxTarget &t) {
        return static_cast<int32_t>(
            t.Send(LB_SETITEMDATA, CB_SETITEMDATA, static_cast<WPARAM>(row), static_cast<LPARAM>(value)));
    });
}

int32_t ZKAPI ZelListFindValue(HWND window, int32_t start, int32_t value) {
    return LbxWithTarget(window, -1, [&](const LbxTarget &t) {
        MessageValues rows(t);
        return LbxFindValueWalk(rows, t.Count(), start, value);
    });
}

int32_t ZKAPI ZelListFindString(HWND window, int32_t start, const wchar_t *text) {
    return LbxWithTarget(window, -1, [&](const LbxTarget &t) -> int32_t {
        if (!text) {
            return -1;
        }
        LbxChild child{};
        if (LbxGetChildCopy(t.window, &child)) {
            // The search starts after `start`: nothing lies after the last possible row.
            return start == INT32_MAX ? -1 : LbxFindString(child, t.window, t.combo, start, text);
        }
        const LRESULT found =
            t.Send(LB_FINDSTRINGEXACT, CB_FINDSTRINGEXACT, static_cast<WPARAM>(start), reinterpret_cast<LPARAM>(text));
        return found < 0 ? -1 : static_cast<int32_t>(found);
    });
}

} // extern "C"
