#include "view/listening.h"

#include <QAccessible>

#ifdef KIVU_QT_PLATFORM
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#endif

namespace kivu::tests {

void SetListening(bool on) {
#ifdef KIVU_QT_PLATFORM
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(on);
#else
    QAccessible::setActive(on);
#endif
}

}  // namespace kivu::tests
