// The names under which the viewer is known to the desktop and to the client.
#ifndef VIEWER_IDENTITY_H_
#define VIEWER_IDENTITY_H_

// The D-Bus name, the desktop entry and the icon.
#define VIEWER_ID "com.velmo.HelpViewer"
#define VIEWER_PATH "/com/velmo/HelpViewer"
#define VIEWER_INTERFACE "com.velmo.HelpViewer1"

// The client asks for its default viewer by these two ids.
#define VIEWER_APP_ID "klh"
#define VIEWER_PUBLISHER_ID "9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1"

// The folder of the application, and the program in it that shows windows.
#define VIEWER_APP "velmohelp-viewer/HelpViewer.app"
#define VIEWER_WINDOW_PROGRAM "libexec/velmohelp-viewer-window"

#endif  // VIEWER_IDENTITY_H_
