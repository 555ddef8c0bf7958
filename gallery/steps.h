// The scenario, one function per family of exports. Each step calls the
// library, compares with what the library is meant to answer, and reports.
#pragma once

#include <windows.h>

namespace gallery {

class ArtPanel;
class Form;
class Pictures;
class Report;

void RunLibrarySteps(Report &report);
void RunStringSteps(Report &report);
void RunNumberSteps(Report &report);
// Fails one allocation, lets the retry dialog come up, photographs it and
// answers Retry after `answerDelayMs`.
void RunRetrySteps(Report &report, Pictures &pictures, DWORD answerDelayMs);
void RunStringTableSteps(Report &report);
void RunFileSteps(Report &report);
// The outline bitmaps and cursors of ZKLIB.dll in a panel on the form.
void RunOutlineArtSteps(Report &report, Form &form, ArtPanel &panel);
// An adopted list box and combo box with coloured rows, fonts, pictures.
void RunOutlineListSteps(Report &report, Form &form, Pictures &pictures);
// An outline list through expand, collapse, demote, promote and a drag, each state photographed.
void RunOutlineOpsSteps(Report &report, Form &form, Pictures &pictures);
// The calendar control in its looks (default, etched, marked dates,
// special-day rules, disabled, pop-up), a picture of each.
void RunCalendarSteps(Report &report, Pictures &pictures);
// The colour palette: default, with menu entries and recent colours chosen
// through its colour dialog, disabled, and keeping its focus frame after
// losing the focus, a picture of each.
void RunPaletteSteps(Report &report, Pictures &pictures);
// A host frame with owner-drawn menu items (pictures, fonts, a check mark),
// photographed with one popup open and an item selected.
void RunMenuSteps(Report &report, Pictures &pictures);
// The splitter before and after a drag, spin fields and meters, on one
// window photographed twice.
void RunControlsSteps(Report &report, Pictures &pictures);
// A header list of four columns with images in its rows, sorted by a header
// click, photographed.
void RunHeaderListSteps(Report &report, Pictures &pictures);
// An order form whose OK button waits for its required fields, before and
// after they are filled, and a message box with a picture and three buttons
// of its own, a picture of each.
void RunWindowSteps(Report &report, Pictures &pictures);
// Loads the palette bitmaps and the icon from ZKLIB.dll into a panel on
// the form.
void RunArtSteps(Report &report, Form &form, ArtPanel &panel);

} // namespace gallery
