// The transfer buffer of a copying call and the loop that moves the bytes.
#include "os/core/filesums.h"
#include "os/win/files.h"
#include "zklib.h"

int32_t ZelFileBufferEnsure(uint64_t size, HGLOBAL &block, uint32_t &usefulSize) {
    const uint32_t wanted = zk::os::TransferSize(size);
    if (!block) {
        block = GlobalAlloc(GMEM_MOVEABLE, wanted);
        if (!block)
            return ZEL_NOT_ENOUGH_MEMORY;
    } else if (GlobalSize(block) < wanted) {
        // Only ever grows: a call keeps the block of its largest file. It
        // grows as soon as it is smaller than the transfer: a block one byte
        // short would take a read one byte past its end.
        HGLOBAL grown = GlobalReAlloc(block, wanted, GMEM_MOVEABLE);
        if (!grown)
            return ZEL_NOT_ENOUGH_MEMORY;
        block = grown;
    }
    usefulSize = wanted;
    return 0;
}

int32_t ZelFileCopyData(HANDLE source, HANDLE destination, void *buffer, uint32_t size) {
    for (;;) {
        // A failed read leaves the count it reports, usually 0, and the copy
        // ends as if the file had: the target comes out short, and no error
        // is made of it.
        DWORD read = 0;
        ReadFile(source, buffer, size, &read, nullptr);
        DWORD written = 0;
        if (!WriteFile(destination, buffer, read, &written, nullptr))
            return -static_cast<int32_t>(GetLastError());
        if (written < size)
            return 0;
    }
}
