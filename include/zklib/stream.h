/* ZKLIB: stream files on the host's C-stream handles. Included by zklib.h, inside its extern "C" block.
 *
 * A file handle is the host's C stream (HostFile). Opening, reading and
 * writing go through the host; seeking and telling go to the C runtime that
 * the library shares with the host. Every function but ZelFileOpen gives -87
 * for a null handle without calling the host. */
#ifndef ZKLIB_STREAM_H
#define ZKLIB_STREAM_H

/* The host's file handle, a C stream (FILE *): the tag FILE stands for in
 * the C runtime's own header, so that this header needs no <stdio.h>. The
 * same typedef in zkhost.h names the same type. */
struct _iobuf;
typedef struct _iobuf *HostFile;

/* Opens by the classic open flags of ZelFileOpenEx; OF_CREATE without
 * OF_EXIST opens for writing. 0, or the negated platform error (-1 when the
 * platform gave none). */
int32_t ZKAPI ZelFileOpen(HostFile *file, const wchar_t *name, int32_t flags);
/* 0, or the negated platform error. */
int32_t ZKAPI ZelFileClose(HostFile file);
/* What the host's read gives: the count of bytes read. */
int32_t ZKAPI ZelFileRead(HostFile file, void *buffer, int32_t bytes);
int32_t ZKAPI ZelFileReadBinary(HostFile file, void *buffer, int32_t bytes);
/* Bytes written, or the negated platform error; a write of nothing is a
 * failure, never 0. */
int32_t ZKAPI ZelFileWrite(HostFile file, const void *buffer, int32_t bytes);
int32_t ZKAPI ZelFileWriteBinary(HostFile file, const void *buffer, int32_t bytes);
/* One line into the slot: 0, or -18 at the end of the file (or any other
 * failure of the host's read), the slot then being as the host left it. */
int32_t ZKAPI ZelFileReadString(HostFile file, HostStr *slot);
/* One line: 0, or the negated platform error. */
int32_t ZKAPI ZelFileWriteString(HostFile file, const wchar_t *text);
/* Moves the stream's descriptor, past the stream's buffer, which is neither
 * flushed nor emptied (origin 0 start, 1 current, 2 end): the new position,
 * or the negated platform error. */
int32_t ZKAPI ZelFileSeek(HostFile file, int32_t offset, int32_t origin);
/* The stream's position as the C runtime reckons it, or the negated
 * platform error. */
int32_t ZKAPI ZelFileTell(HostFile file);

#endif /* ZKLIB_STREAM_H */
