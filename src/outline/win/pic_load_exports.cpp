// Loading and freeing pictures.
#include "frame/win/guard.h"
#include "outline/win/pic.h"

using namespace zk::lbx;

extern "C" int32_t ZKAPI ZelPicFree(ZelPicHandle picture) { return PicFree(reinterpret_cast<const void *>(picture)); }

extern "C" ZelPicHandle ZKAPI ZelPicLoad(uint32_t flags, const wchar_t *source, const wchar_t *name) {
    return zk::Quietly([&] { return PicToHandle(PicLoad(static_cast<uint16_t>(flags), source, name)); },
                       [] { return ZelPicHandle{0}; });
}
