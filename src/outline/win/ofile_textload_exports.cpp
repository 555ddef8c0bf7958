// Loading an outline from a text file.
#include "frame/win/guard.h"
#include "outline/win/ofile_win.h"

using namespace zk::lbx;

extern "C" ZelItemHandle ZKAPI ZelListLoadOutlineFile(HWND window, const wchar_t *fileName, ZelPicHandle parentNormal,
                                                      ZelPicHandle parentSelected, ZelPicHandle leafNormal,
                                                      ZelPicHandle leafSelected) {
    const ZelPicHandle given[4] = {parentNormal, parentSelected, leafNormal, leafSelected};
    return zk::Quietly([&] { return ofile::LoadFile(window, fileName, given); }, [] { return ZelItemHandle{0}; });
}
