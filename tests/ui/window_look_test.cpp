#include "ui/window_look.h"

#include <gtest/gtest.h>

namespace kivu::ui {
namespace {

TEST(WindowLook, IsThatOfTheMainWindowAndItsLists) {
    core::Form1 form{forms::Toolkit{}};
    form.UAE_Short.SetFontSize(40);
    form.UAE_Short.SetBackColor(1);
    form.SetForeColor(2);
    const forms::Look look = LookOf(form);
    EXPECT_EQ(look.points, 40);
    EXPECT_EQ(look.fieldBack, 1U);
    EXPECT_EQ(look.fore, 2U);
    EXPECT_EQ(look.back, form.BackColor());
}

}  // namespace
}  // namespace kivu::ui
