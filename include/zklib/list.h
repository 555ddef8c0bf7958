/* ZKLIB: the outline engine on list and combo boxes: styles, item flags, messages and list exports. Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_LIST_H
#define ZKLIB_LIST_H

#endif
