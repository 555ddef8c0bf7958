// An outline list through its operations: a small tree of folders and
// files with the library's own pictures, shown at its top level, expanded,
// collapsed, a node demoted and promoted again, and a node dragged into
// another folder. Every state is checked row by row and photographed.
#include <windows.h>

#include <string>
#include <vector>

#include "capture.h"
#include "form.h"
#include "ownedstr.h"
#include "pictures.h"
#include "report.h"
#include "steps.h"
#include "zklib.h"

namespace gallery {
namespace {

// The pictures belong to the application and live as long as the process:
// the list stays on the form, which goes before them.
struct OpsPictures {
    ZelPicHandle folder = 0, folderOpen = 0, document = 0;
    OpsPictures() {
        folder = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"FLDR");
        folderOpen = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"FLDROPEN");
        document = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"FILEDOC");
    }
    ~OpsPictures() {
        for (ZelPicHandle p : {folder, folderOpen, document})
            if (p)
                ZelPicFree(p);
    }
    OpsPictures(const OpsPictures &) = delete;
    OpsPictures &operator=(const OpsPictures &) = delete;
};

const OpsPictures &Keep() {
    static const OpsPictures pictures;
    return pictures;
}

// The rows as "text/level" joined by " | ", read the way an application reads them.
std::wstring Rows(HWND list) {
    std::wstring out;
    const int count = static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0));
    for (int row = 0; row < count; ++row) {
        const OwnedStr text(ZelListGetText(list, row));
        const int32_t level = ZelListGetLevel(ZelListGetItemHandle(list, row));
        out += (row ? L" | " : L"") + text.Text() + L"/" + std::to_wstring(level);
    }
    return out;
}

class Scene {
public:
    Scene(Report &report, Pictures &pictures, HWND list) : report_(report), pictures_(pictures), list_(list) {}

    // Checks the rows after a step and photographs the list.
    void State(const wchar_t *picture, const std::wstring &expected) {
        report_.Text(std::wstring(L"rows (") + picture + L")", Rows(list_), expected);
        if (pictures_.Enabled())
            pictures_.Save(std::wstring(L"outline-ops-") + picture, CaptureControl(list_));
    }

private:
    Report &report_;
    Pictures &pictures_;
    HWND list_;
};

ZelItemHandle Load(HWND list, ZelItemHandle parent, ZelPicHandle normal, ZelPicHandle selected, const wchar_t *text,
                   int &failures) {
    const ZelItemHandle node = ZelListLoadChild(list, parent, normal, selected, text, 0, 0);
    failures += node ? 0 : 1;
    return node;
}

} // namespace

void RunOutlineOpsSteps(Report &report, Form &form, Pictures &pictures) {
    report.Section(L"Outline operations");
    const RECT area = form.Reserve(170);
    HWND list = CreateWindowExW(WS_EX_CLIENTEDGE, L"LISTBOX", L"",
                                WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOTIFY | LBS_OWNERDRAWVARIABLE, area.left,
                                area.top, 260, 170, form.Window(), nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(form.Font()), FALSE);
    report.Number(L"ZelListSetStyle(list, LBX_StyleOutline)", ZelListSetStyle(list, LBX_StyleOutline, nullptr), 1);
    Scene scene(report, pictures, list);
    const OpsPictures &pic = Keep();
    report.Check(L"ZelPicLoad(ZKLIB.dll: FLDR, FLDROPEN, FILEDOC)",
                 pic.folder && pic.folderOpen && pic.document ? L"three pictures" : L"missing",
                 pic.folder && pic.folderOpen && pic.document, L"three pictures");

    // Projects { Alpha { plan.doc, budget.xls }, Beta, gamma.txt }, Archive { 2023 }, readme.txt
    int failures = 0;
    const ZelItemHandle root = ZelListGetRoot(list);
    const ZelItemHandle projects = Load(list, root, pic.folder, pic.folderOpen, L"Projects", failures);
    const ZelItemHandle alpha = Load(list, projects, pic.folder, pic.folderOpen, L"Alpha", failures);
    Load(list, alpha, pic.document, pic.document, L"plan.doc", failures);
    Load(list, alpha, pic.document, pic.document, L"budget.xls", failures);
    Load(list, projects, pic.folder, pic.folderOpen, L"Beta", failures);
    Load(list, projects, pic.document, pic.document, L"gamma.txt", failures);
    const ZelItemHandle archive = Load(list, root, pic.folder, pic.folderOpen, L"Archive", failures);
    Load(list, archive, pic.folder, pic.folderOpen, L"2023", failures);
    Load(list, root, pic.document, pic.document, L"readme.txt", failures);
    report.Number(L"ZelListLoadChild failures (9 nodes)", failures, 0);

    report.Number(L"ZelListShowOutline(list, 0)", ZelListShowOutline(list, 0), 1);
    scene.State(L"1-shown", L"Projects/0 | Archive/0 | readme.txt/0");

    report.Number(L"ZelListExpand(list, 0) Projects", ZelListExpand(list, 0), 3);
    report.Number(L"ZelListExpand(list, 1) Alpha", ZelListExpand(list, 1), 2);
    scene.State(L"2-expanded", L"Projects/0 | Alpha/1 | plan.doc/2 | budget.xls/2 | Beta/1 | gamma.txt/1 | "
                               L"Archive/0 | readme.txt/0");

    report.Number(L"ZelListCollapse(list, 1) Alpha", ZelListCollapse(list, 1), 1);
    scene.State(L"3-collapsed", L"Projects/0 | Alpha/1 | Beta/1 | gamma.txt/1 | Archive/0 | readme.txt/0");

    // Beta takes the open folder as it gains its first child.
    report.Number(L"ZelListDemote(list, 3) gamma.txt", ZelListDemote(list, 3, pic.folderOpen, pic.folderOpen), 1);
    scene.State(L"4-demoted", L"Projects/0 | Alpha/1 | Beta/1 | gamma.txt/2 | Archive/0 | readme.txt/0");

    // Left without children, Beta goes back to the closed folder.
    report.Number(L"ZelListPromote(list, 3) gamma.txt", ZelListPromote(list, 3, pic.folder, pic.folderOpen), 1);
    scene.State(L"5-promoted", L"Projects/0 | Alpha/1 | Beta/1 | gamma.txt/1 | Archive/0 | readme.txt/0");

    report.Number(L"ZelListDragDrop(readme.txt onto Archive, as child)",
                  ZelListDragDrop(list, 5, list, 4, LBX_DropAsChild), 1);
    scene.State(L"6-dragged", L"Projects/0 | Alpha/1 | Beta/1 | gamma.txt/1 | Archive/0 | 2023/1 | readme.txt/1");
}

} // namespace gallery
