// A static library of a plugin is linked, and known to the toolkit, only where a program asks for
// it.
#include <QtPlugin>

Q_IMPORT_PLUGIN(QOffscreenIntegrationPlugin)
