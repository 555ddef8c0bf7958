// The message box lays itself out from the dialog base units, the system
// metrics, its text and its buttons: sums only, with the measuring of text
// left to the platform (MsgBoxMeasure).
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "frame/core/geometry.h"

namespace zk::menu {

struct MsgBoxMetrics {
    int32_t baseX = 0, baseY = 0;              // the dialog base units
    int32_t iconWidth = 0, iconHeight = 0;     // SM_CXICON, SM_CYICON
    int32_t frameX = 0, frameY = 0;            // SM_CXDLGFRAME, SM_CYDLGFRAME
    int32_t caption = 0;                       // SM_CYCAPTION
    int32_t screenWidth = 0, screenHeight = 0; // SM_CXFULLSCREEN, SM_CYFULLSCREEN
};

struct Extent {
    int32_t width = 0, height = 0;
};

// Text as the box's font draws it.
class MsgBoxMeasure {
public:
    virtual ~MsgBoxMeasure() = default;
    // One line: the text and the character after it, its terminator.
    virtual Extent Line(std::u16string_view text) const = 0;
    // Broken into lines at words within `width`, tabs expanded.
    virtual Extent Wrapped(std::u16string_view text, int32_t width) const = 0;
    // A button's caption on one line.
    virtual int32_t ButtonText(std::u16string_view caption) const = 0;
};

// Where everything goes. The dialog rectangle is in screen pixels, the rest
// in the dialog's client area.
struct MsgBoxLayout {
    Rect dialog;
    Point icon;
    Rect text;
    int32_t textLimit = 0; // the widest the text may be
    bool wrapped = false;  // measured as broken lines
    int32_t row = 0;       // the width of the button row
    int32_t buttonWidth = 0, buttonHeight = 0, buttonY = 0;
    std::vector<int32_t> buttonX; // one per place in the row, blank ones too
};

// `buttons`: one per place in the row; an empty place is blank and takes
// its room without a caption.
MsgBoxLayout LayOutMessageBox(const MsgBoxMetrics &metrics, bool hasIcon, std::u16string_view text,
                              const std::vector<std::optional<std::u16string_view>> &buttons,
                              const MsgBoxMeasure &measure);

// The control id of a button: 2 (pressed by Esc as well) when its result
// is 2 or it is the only place in the row, else its place + 3.
int32_t MsgBoxButtonId(uint32_t result, int32_t place, int32_t count);

// The icon selector: a picture handle when its low 16 bits are set, else
// the first of the system icon bits set, in their order of priority.
enum class MsgBoxIcon { None, Picture, Asterisk, Hand, Question, Exclamation };
MsgBoxIcon MsgBoxIconOf(uint64_t selector);

} // namespace zk::menu
