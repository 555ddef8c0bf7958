/* ZKLIB: host array functions. Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_ARRAY_H
#define ZKLIB_ARRAY_H

#endif
