// The memory file under the archive: one position for reads and writes.
#include "designer_test.h"

using namespace designertest;
using zk::CMemFile;

namespace {

TEST(MemFile, SeekBeforeTheStartIsAnError) {
    CMemFile file;
    file.Write("abc", 3);
    try {
        file.Seek(-4, CMemFile::end);
        FAIL() << "no exception";
    } catch (const zk::FileException &e) {
        EXPECT_EQ(e.cause, zk::FileException::badSeek);
    }
    EXPECT_EQ(file.GetPosition(), 3u) << "a failed seek leaves the position";
}

} // namespace
