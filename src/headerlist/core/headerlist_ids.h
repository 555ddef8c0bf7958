/* String resources of the header list. Plain defines: the resource script
 * includes this file as well as the code. */
#ifndef ZK_HEADERLIST_IDS_H
#define ZK_HEADERLIST_IDS_H

/* The words of the style exports, shared with the drop-down's editable pair. */
#define IDS_HDR_GET_STYLE 185
#define IDS_HDR_SET_STYLE 186

#endif
