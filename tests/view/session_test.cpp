#include "view/session.h"

#include <gtest/gtest.h>

namespace kivu::view {
namespace {

TEST(ViewSession, WaylandPlacesNoWindowAndKeepsNoneOnTop) {
    for (const char* name : {"wayland", "wayland-egl"}) {
        const Session session = SessionOf(QString::fromUtf8(name));
        EXPECT_FALSE(session.placesWindows) << name;
        EXPECT_FALSE(session.keepsOnTop) << name;
        EXPECT_FALSE(session.bypassesManager) << name;
    }
}

TEST(ViewSession, OthersDo) {
    for (const char* name : {"xcb", "windows", "offscreen"}) {
        const Session session = SessionOf(QString::fromUtf8(name));
        EXPECT_TRUE(session.placesWindows) << name;
        EXPECT_TRUE(session.keepsOnTop) << name;
        EXPECT_EQ(session.bypassesManager, QString::fromUtf8(name) == QStringLiteral("xcb"));
    }
}

}  // namespace
}  // namespace kivu::view
