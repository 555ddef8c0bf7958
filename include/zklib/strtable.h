/* ZKLIB: string tables. Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_STRTABLE_H
#define ZKLIB_STRTABLE_H

#endif
