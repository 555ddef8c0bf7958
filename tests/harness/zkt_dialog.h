// Answers modal dialogs and message boxes that the code under test shows on
// this thread, so that a test can run through them without a user.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace zkt {

struct DialogControl {
    int id;
    std::wstring className;
    std::wstring text;
};

// What a dialog showed when it was answered.
struct AnsweredDialog {
    std::wstring caption;
    std::vector<DialogControl> controls;
    int button; // the id it was answered with

    // The texts of its static controls, in creation order, empty ones left out.
    std::vector<std::wstring> StaticTexts() const;
    // The text of control `id`; empty if it has none.
    std::wstring text(int id) const;
    bool HasControl(int id) const;
};

// Which dialogs to answer; an empty caption or a control id of 0 matches any.
struct DialogMatch {
    std::wstring caption;
    int controlId = 0;
};

// While alive, a thread timer looks every few milliseconds for a visible,
// enabled dialog ("#32770") of this thread that matches, and posts it
// WM_COMMAND with the button id of its turn. Timers run inside the modal
// loops of DialogBoxParamW and MessageBoxW, so the dialog is answered while
// the code under test waits for it. Make it on the thread that shows the
// dialogs.
//
// A test must not hang: a dialog still there `giveUpTicks` ticks after its
// answer, a dialog that does not match for as long, any dialog after the
// last button of the list and any after 200 answers of the same button are
// ended with EndDialog(IDCANCEL) and recorded as failures, reported
// (ADD_FAILURE) when the answerer goes. If dialogs keep coming after 50 such
// endings, the program ends with a message instead of looping for ever.
class DialogAnswerer {
public:
    // Answers every matching dialog with `button` (at most 200).
    explicit DialogAnswerer(int button, DialogMatch match = {});
    // Answers the first matching dialog with buttons[0], the next with
    // buttons[1] and so on; one more is a failure. A list of one button must
    // be spelled std::vector<int>{id}: {id} alone picks the constructor above.
    explicit DialogAnswerer(std::vector<int> buttons, DialogMatch match = {});
    ~DialogAnswerer();
    DialogAnswerer(const DialogAnswerer &) = delete;
    DialogAnswerer &operator=(const DialogAnswerer &) = delete;

    int answered() const { return static_cast<int>(dialogs_.size()); }
    const std::vector<AnsweredDialog> &dialogs() const { return dialogs_; }
    const std::vector<std::string> &failures() const { return failures_; }

    // Ticks of 10 ms that a dialog may linger (default 200).
    void SetGiveUpTicks(int ticks) { giveUpTicks_ = ticks; }
    // How many dialogs one button answers before it gives up (default 200).
    void SetMaxRepeats(int count) { maxRepeats_ = count > 0 ? static_cast<size_t>(count) : 0; }
    // Runs on each matching dialog just before its answer is posted, to look
    // at what the record does not keep or to post messages ahead of it.
    void SetInspector(std::function<void(HWND dialog)> inspector) { inspector_ = std::move(inspector); }

    // Called by the timer.
    UINT_PTR TimerId() const { return timer_; }
    void tick();

private:
    struct Watched {
        HWND hwnd;
        int since; // tick when first seen or answered
        bool answered;
    };

    void start();
    void answer(HWND dialog);
    void giveUp(HWND dialog, const std::string &why);
    void mark(HWND dialog, bool answered); // (re)starts its lingering count
    bool matches(HWND dialog) const;

    std::vector<int> buttons_;
    bool repeat_ = false; // every dialog gets buttons_[0]
    DialogMatch match_;
    std::function<void(HWND)> inspector_;
    UINT_PTR timer_ = 0;
    int ticks_ = 0;
    int giveUpTicks_ = 200;
    size_t maxRepeats_ = 200;
    int forced_ = 0; // dialogs ended by EndDialog
    std::vector<Watched> watched_;
    std::vector<AnsweredDialog> dialogs_;
    std::vector<std::string> failures_;
};

} // namespace zkt
