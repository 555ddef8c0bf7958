// The retry dialog: the host refuses one allocation, the library asks the
// user, the answer is Retry, and the call completes as if nothing happened.
#include "ownedstr.h"
#include "pictures.h"
#include "report.h"
#include "retry.h"
#include "steps.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace gallery {

void RunRetrySteps(Report &report, Pictures &pictures, DWORD answerDelayMs) {
    report.Section(L"Retry dialog");
    const int32_t callsBefore = ZkHostAllocCalls();
    ZkHostFailAllocations(1);
    OwnedStr result;
    RetryDialogSeen seen;
    {
        RetryAnswerer answerer(answerDelayMs);
        if (!answerer.Armed()) {
            ZkHostFailAllocations(0);
            report.Check(L"retry answerer", L"no timer", false, L"a thread timer");
            return;
        }
        result.Reset(ZelStrTrim(L"   retried   "));
        seen = answerer.Seen();
    }
    ZkHostFailAllocations(0); // in case the library never asked the host
    const int32_t calls = ZkHostAllocCalls() - callsBefore;

    report.Text(L"ZelStrTrim after a refused allocation", result.Text(), L"retried");
    report.Number(L"retry dialogs shown", seen.dialogs, 1);
    // One refused allocation and the same one again after Retry.
    report.Number(L"HostStrAlloc calls", calls, 2);
    report.Text(L"dialog caption", seen.caption, L"Zelkova Kit");
    report.Text(L"dialog message", seen.message, L"An error has occurred in your application.");
    report.Text(L"dialog buttons", seen.retry + L" | " + seen.halt, L"&Retry | &Halt Application");
    if (seen.gaveUp)
        report.LogCheck(L"retry answerer", L"gave up: no dialog to answer, or Retry ignored", false);
    if (seen.dialogs > 0)
        pictures.Save(L"retry-dialog", seen.picture);
}

} // namespace gallery
