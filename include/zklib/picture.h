/* ZKLIB: picture and font registries. Included by zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_PICTURE_H
#define ZKLIB_PICTURE_H

/* Load flags of ZelPicLoad, kept in a picture as loaded. */
#define PIC_FormatBitmap 0x0001 /* load as a bitmap */
#define PIC_FormatIcon 0x0002   /* load as an icon */
#define PIC_LoadMemory 0x0100   /* source points at a BMP or ICO image in memory */
#define PIC_LoadModule 0x0200   /* source names an executable module, name the resource */
#define PIC_LoadFile 0x0400     /* source names a .BMP or .ICO file */
#define PIC_LoadResource 0x0800 /* source names a resource of the host application */
#define PIC_SizeSmall 0x1000    /* scale to 16 by 16; wins over PIC_SizeLarge */
#define PIC_SizeLarge 0x2000    /* scale to the system icon size */
#define PIC_ListOwned 0x8000    /* the list's registry frees the picture */

/* Style bits of a font. */
#define FONT_Italic 0x0002
#define FONT_Underline 0x0004
#define FONT_Bold 0x0008
#define FONT_StrikeOut 0x0010

/* Selection bits of ZelFontEnum, and the type codes it reports. */
#define FONT_EnumScreen 0x0001
#define FONT_EnumPrinter 0x0002
#define FONT_TypeOther 0
#define FONT_TypeDevice 1
#define FONT_TypeRaster 2
#define FONT_TypeTrueType 4

/* A picture handle (ZelPicHandle of zklib/list.h: the picture record), 0 on
 * failure. A load that matches no source gives an empty picture, not 0. */
ZelPicHandle ZKAPI ZelPicLoad(uint32_t flags, const wchar_t *source, const wchar_t *name);
/* 0 done; -87 for 0 or a handle that names no live picture. */
int32_t ZKAPI ZelPicFree(ZelPicHandle picture);

/* A font of a face (below 32 characters), a size in points and style bits; 0 on failure. */
HFONT ZKAPI ZelFontLoad(const wchar_t *face, int32_t points, uint32_t style);
/* Deletes the font; always 1. */
int32_t ZKAPI ZelFontFree(HFONT font);
/* Face (a new host string), points and style bits of a font; 1, 0 on failure. */
int32_t ZKAPI ZelFontGet(HFONT font, HostStr *face, int32_t *points, uint16_t *style);
/* Face names into a string array and type codes into a number array, bounds
 * 0 to count-1; printer fonts first. The count, -8 without memory. */
int32_t ZKAPI ZelFontEnum(uint32_t selection, HostArray names, HostArray types);

#endif
