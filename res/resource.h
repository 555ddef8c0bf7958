/* Resource ids of ZKLIB.dll. Shared by the resource script and the code. */
#ifndef ZK_RESOURCE_H
#define ZK_RESOURCE_H

/* Error recovery dialog. */
#define IDD_RECOVERY         201
#define IDC_RECOVERY_MESSAGE 101
#define IDC_RECOVERY_ICON    202
#define IDC_RECOVERY_RETRY   203
#define IDC_RECOVERY_HALT    204

/* String table. */
#define IDS_FILEVERSION_PATH    1
#define IDS_COPYRIGHT_PATH      2
#define IDS_PROPERTIES_SUFFIX   3
#define IDS_PRODUCTVERSION_PATH 4
#define IDS_NULL_CONTROL        48
#define IDS_UNHANDLED_EXCEPTION 52

#endif
