#include "hosts/qt/compositing_qt.h"

#include "hosts/qt/x11_requests.h"

namespace kivu::hosts {

bool IsComposited() {
#if QT_CONFIG(xcb)
    if (X11Requests* x11 = X11Requests::Instance()) {
        // EWMH: whoever composites the first screen owns this selection.
        static const std::uint32_t selection = x11->Atom("_NET_WM_CM_S0");
        return x11->Owner(selection) != 0;
    }
#endif
    return true;
}

}  // namespace kivu::hosts
