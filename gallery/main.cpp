// zkgallery: a small application on the reference host that shows what the
// library does. It builds a form, runs the scenario through the exports and
// logs every step; headless it also writes a picture of each window it
// shows and exits, interactive it waits for the form to be closed.
//
// Exit code: 0 when every step gave the expected answer and every host
// string was released, 1 when a step failed, 2 when the run could not start.
#include <windows.h>
#include <shellapi.h>

#include <string>
#include <vector>

#include "artpanel.h"
#include "capture.h"
#include "form.h"
#include "log.h"
#include "options.h"
#include "pictures.h"
#include "pump.h"
#include "report.h"
#include "steps.h"
#include "zkhostctl.h"

namespace {

using namespace gallery;

// How long the retry dialog stays up before it is answered when a person
// is watching.
constexpr DWORD kInteractiveAnswerMs = 1500;

std::vector<std::wstring> Arguments() {
    std::vector<std::wstring> out;
    int count = 0;
    LPWSTR *list = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; list && i < count; ++i)
        out.emplace_back(list[i]);
    if (list)
        LocalFree(list);
    return out;
}

std::wstring Environment(const wchar_t *name) {
    wchar_t value[16] = {};
    const DWORD length = GetEnvironmentVariableW(name, value, 16);
    return length > 0 && length < 16 ? value : L"";
}

// Makes every folder of the path that does not exist yet.
bool MakeFolders(const std::wstring &path) {
    for (size_t at = path.find(L'\\', 3);; at = path.find(L'\\', at + 1)) {
        const std::wstring part = path.substr(0, at);
        if (!part.empty() && part.back() != L':' && !CreateDirectoryW(part.c_str(), nullptr) &&
            GetLastError() != ERROR_ALREADY_EXISTS)
            return false;
        if (at == std::wstring::npos)
            return true;
    }
}

int Run(HINSTANCE instance, const Options &options, Log &log) {
    log.Line(std::wstring(L"zkgallery: ") + (options.headless ? L"headless" : L"interactive") + L", output in " +
             options.outDir);
    ZkHostHaltReturns(1); // a Halt must be seen in the log, not end the run silently
    const int32_t liveAtStart = ZkHostLiveStrings();
    const int32_t arraysAtStart = ZkHostLiveArrays();

    Form form;
    if (!form.Create(instance, L"Zelkova Kit gallery")) {
        log.Line(L"FAIL  the form could not be created");
        return 2;
    }
    Report report(log, &form);
    Pictures pictures(options.headless, options.outDir, report);

    form.Column(0);
    RunLibrarySteps(report);
    RunStringSteps(report);
    form.Column(1);
    RunNumberSteps(report);
    ArtPanel panel;
    RunArtSteps(report, form, panel);

    // The retry dialog needs an active form as its owner.
    form.Show();
    PumpPending();
    RunRetrySteps(report, pictures, options.headless ? 0 : kInteractiveAnswerMs);
    form.Show(); // the rows of the retry steps
    PumpPending();

    if (pictures.Enabled()) {
        report.Section(L"Pictures");
        pictures.Save(L"form", CaptureTopLevel(form.Window()));
        pictures.Save(L"art-panel", CaptureControl(panel.Window()));
    }

    // Page 2: files, string tables and arrays, the adopted lists.
    form.NextPage();
    RunFileSteps(report);
    RunStringTableSteps(report);
    form.Column(1);
    RunOutlineListSteps(report, form, pictures);
    form.Show();
    PumpPending();
    if (pictures.Enabled())
        pictures.Save(L"form-2", CaptureTopLevel(form.Window()));

    // Page 3: the outline art, photographed on its own.
    form.NextPage();
    ArtPanel outlinePanel;
    RunOutlineArtSteps(report, form, outlinePanel);
    form.Show();
    PumpPending();
    if (pictures.Enabled())
        pictures.Save(L"outline-art", CaptureControl(outlinePanel.Window()));

    // Page 4: an outline through its operations, each state photographed.
    form.NextPage();
    RunOutlineOpsSteps(report, form, pictures);
    form.Show();
    PumpPending();
    if (pictures.Enabled())
        pictures.Save(L"form-4", CaptureTopLevel(form.Window()));

    // Page 5: the calendar control; the steps photograph each calendar.
    form.NextPage();
    const int32_t beforeCalendar = ZkHostLiveStrings();
    RunCalendarSteps(report, pictures);
    // The calendar keeps one host string, its date-format slot, for the process.
    const int32_t calendarSlot = ZkHostLiveStrings() - beforeCalendar == 1 ? 1 : 0;
    form.Show();
    PumpPending();

    // Page 6: the colour palette; the steps photograph each palette.
    form.NextPage();
    RunPaletteSteps(report, pictures);
    // Page 7: menus on a host frame; the step photographs its open popup.
    form.NextPage();
    RunMenuSteps(report, pictures);
    // Page 8: the splitter, spin fields and meters.
    form.NextPage();
    RunControlsSteps(report, pictures);
    // Page 9: the header list, photographed.
    form.NextPage();
    RunHeaderListSteps(report, pictures);
    // Page 10: the window utilities; the steps photograph the form and the box.
    form.NextPage();
    RunWindowSteps(report, pictures);
    form.Show();
    PumpPending();

    report.Section(L"Host values");
    report.LogCheck(L"HostHalt calls", std::to_wstring(ZkHostHaltCount()), ZkHostHaltCount() == 0, L"0");
    report.LogCheck(L"live host arrays", std::to_wstring(ZkHostLiveArrays()), ZkHostLiveArrays() == arraysAtStart,
                    std::to_wstring(arraysAtStart));
    const int32_t liveAtEnd = ZkHostLiveStrings();
    report.LogCheck(L"ZkHostLiveStrings()",
                    std::to_wstring(liveAtEnd) + L" (at start " + std::to_wstring(liveAtStart) + L")",
                    liveAtEnd == liveAtStart + calendarSlot, std::to_wstring(liveAtStart + calendarSlot));

    log.Line(L"");
    log.Line(L"zkgallery: " + std::to_wstring(report.Passes()) + L" passed, " + std::to_wstring(report.Failures()) +
             L" failed");

    if (!options.headless) {
        RunUntilQuit();
    }
    return report.Failures() ? 1 : 0;
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    const std::vector<std::wstring> arguments = Arguments();
    std::vector<const wchar_t *> argv;
    for (const std::wstring &argument : arguments)
        argv.push_back(argument.c_str());
    const std::wstring headless = Environment(L"ZK_HEADLESS");
    const Options options = ParseOptions(static_cast<int>(argv.size()), argv.data(), headless.c_str());

    Log log;
    if (!options.valid) {
        log.Line(L"zkgallery: " + options.error);
        return 2;
    }
    if (!MakeFolders(options.outDir) || !log.Open(options.outDir + L"\\gallery.log")) {
        log.Line(L"zkgallery: cannot write to " + options.outDir);
        return 2;
    }
    return Run(instance, options, log);
}
