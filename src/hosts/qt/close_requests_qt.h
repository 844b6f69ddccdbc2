#pragma once

#include <QAbstractNativeEventFilter>

class QCoreApplication;

namespace kivu::hosts {

// The toolkit swallows the close request of a panel or task bar for a window behind a modal one,
// and the user sees nothing happen. What waits for him comes to the front instead.
class CloseRequests : public QAbstractNativeEventFilter {
 public:
    explicit CloseRequests(QCoreApplication& application);
    ~CloseRequests() override;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
    QCoreApplication& application;
};

}  // namespace kivu::hosts
