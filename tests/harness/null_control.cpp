#include "zkt_null_control.h"

#include <string>

#include "zkt_debug_output.h"
#include "zkt_dialog.h"

namespace zkt {

::testing::AssertionResult NullControlAnswers(const NullControlCall &row) {
    DebugOutputCapture capture;
    DialogAnswerer answerer(IDOK);
    const int64_t got = row.call();
    if (got != row.failure)
        return ::testing::AssertionFailure() << "answered " << got << ", not " << row.failure;
    if (answerer.answered() != 1)
        return ::testing::AssertionFailure() << answerer.answered() << " boxes, not one";
    const auto texts = answerer.dialogs()[0].staticTexts();
    const std::wstring box = std::wstring(L"Function '") + row.name +
                             L"' unable to act because pointer to control instance is NULL.  "
                             L"This is likely due to interception of ZKM_ControlCreate in Brandle "
                             L"Builder.  Please remove any such lines from your application.";
    if (texts.empty() || texts.back() != box)
        return ::testing::AssertionFailure() << "the box does not show string 48 for its name";
    const std::wstring trace = row.words ? std::wstring(row.name) + L" - " + row.words + L"\n" : L"";
    if (capture.text() != trace)
        return ::testing::AssertionFailure() << "the trace is not the row's words";
    return ::testing::AssertionSuccess();
}

} // namespace zkt
