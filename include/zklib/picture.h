/* ZKLIB: picture and font registries. Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_PICTURE_H
#define ZKLIB_PICTURE_H

#endif
