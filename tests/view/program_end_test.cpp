#include "view/program_end.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QTest>
#include <gtest/gtest.h>
#include <string>

#include "view/shown_form.h"

namespace kivu::tests {
namespace {

class ProgramEndTest : public ShownForm {
 protected:
    std::string log;
    view::ProgramEnd end{[this] { log += "store "; }, [this] { log += "end "; }};
};

TEST_F(ProgramEndTest, SessionThatIsToEndIsOnlyToldOf) {
    // The toolkit hands the manager through; nobody here has a use for it.
    alignas(QSessionManager) char nothing[sizeof(QSessionManager)] = {};
    emit qApp->commitDataRequest(reinterpret_cast<QSessionManager&>(nothing));
    EXPECT_EQ(log, "store ");
}

TEST_F(ProgramEndTest, ToolkitsEndAsksNoWindow) {
    Show();
    form.onQueryClose = [this](bool& cancel) {
        log += "asked ";
        cancel = true;
    };
    QEvent quit(QEvent::Quit);
    EXPECT_TRUE(QCoreApplication::sendEvent(qApp, &quit));
    EXPECT_EQ(log, "end ");
}

// Called off, the session leaves a window that is asked as ever.
TEST_F(ProgramEndTest, SessionThatWasCalledOffChangesNothing) {
    Show();
    form.onQueryClose = [](bool& cancel) { cancel = true; };
    alignas(QSessionManager) char nothing[sizeof(QSessionManager)] = {};
    emit qApp->commitDataRequest(reinterpret_cast<QSessionManager&>(nothing));
    EXPECT_FALSE(view.Window().close());
}

}  // namespace
}  // namespace kivu::tests
