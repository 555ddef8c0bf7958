/* Host value records shared by the library, the reference host and the
 * portable core. Plain C layout: these cross the export boundary by value. */
#ifndef ZKRECORD_H
#define ZKRECORD_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A host number: length of the significant part of digits; 0 is null. */
#pragma pack(push, 1)
typedef struct HostNumber {
    uint8_t length;
    uint8_t digits[24];
} HostNumber;
#pragma pack(pop)

/* A date-time has the number's shape: a count of days, time of day as the
 * fraction. Only the low four bits of its length byte count. */
typedef HostNumber HostDateTime;

typedef uint32_t HostStr;   /* counted host string handle; 0 is no string */
typedef uint32_t HostArray; /* host array handle */

/* Element type codes of host arrays. */
enum {
    HOST_TYPE_BOOLEAN = 1,
    HOST_TYPE_DATETIME = 2,
    HOST_TYPE_NUMBER = 3,
    HOST_TYPE_STRING = 5,
    HOST_TYPE_LONGSTRING = 7,
    HOST_TYPE_HANDLE = 256
};

/* Whether a code is one of the element types above. */
static inline int HostIsArrayType(int32_t type) {
    return type == HOST_TYPE_BOOLEAN || type == HOST_TYPE_DATETIME || type == HOST_TYPE_NUMBER ||
           type == HOST_TYPE_STRING || type == HOST_TYPE_LONGSTRING || type == HOST_TYPE_HANDLE;
}

#ifdef __cplusplus
}
static_assert(sizeof(HostNumber) == 25, "host number records are 25 bytes");
#endif

#endif
