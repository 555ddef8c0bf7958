/* ZKLIB: the control frame shared by the control families. Included by
 * zklib.h, inside its extern "C" block. */
#ifndef ZKLIB_DESIGNER_H
#define ZKLIB_DESIGNER_H

/* Sent or posted to a control's own window once its object exists: wParam 0,
 * lParam the object's pointer, which every exported control function takes. */
#define ZKM_ControlCreate 0x6008

/* Sent by a control to its own window when it has made its children, so
 * that a window laying out its neighbours finds them anew; no arguments. */
#define ZKM_Refresh 0x600A

#endif
