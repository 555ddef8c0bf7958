/* String resources of the palette area. Plain defines: the resource script
 * includes this file as well as the code. */
#ifndef ZK_PALETTE_IDS_H
#define ZK_PALETTE_IDS_H

/* The text of the menu line that opens the colour dialog. */
#define IDS_PAL_OTHER_COLOR 80

#endif
