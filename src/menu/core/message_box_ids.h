/* Resource ids of the message box. Plain defines: the resource script
 * includes this file as well as the code. */
#ifndef ZK_MESSAGE_BOX_IDS_H
#define ZK_MESSAGE_BOX_IDS_H

#define IDD_MSGBOX 301
#define IDC_MSGBOX_ICON 302
#define IDC_MSGBOX_TEXT 303

#endif
