/* ZKLIB: file operations and the path routines they share. Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_FILES_H
#define ZKLIB_FILES_H

#endif
