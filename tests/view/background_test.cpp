#include <QCoreApplication>
#include <QTest>
#include <QThread>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

#include "hosts/qt/background_qt.h"

namespace kivu::tests {
namespace {

constexpr int patience = 20000;  // milliseconds

TEST(Background, WorksOnOneOtherThreadInOrderAndIsDoneOnTheWindows) {
    hosts::QtBackground background;
    QThread* const window = QThread::currentThread();
    std::vector<int> worked, done;
    QThread* worker = nullptr;
    bool sameWorker = true, doneHere = true;
    for (int i = 0; i < 100; ++i) {
        background.Run(
            [&, i] {
                if (!worker) worker = QThread::currentThread();
                sameWorker = sameWorker && worker == QThread::currentThread();
                worked.push_back(i);
            },
            [&, i] {
                doneHere = doneHere && QThread::currentThread() == window;
                done.push_back(i);
            });
    }
    EXPECT_TRUE(done.empty());
    ASSERT_TRUE(QTest::qWaitFor([&] { return done.size() == 100; }, patience));
    EXPECT_NE(worker, window);
    EXPECT_TRUE(sameWorker);
    EXPECT_TRUE(doneHere);
    EXPECT_TRUE(std::is_sorted(worked.begin(), worked.end()));
    EXPECT_TRUE(std::is_sorted(done.begin(), done.end()));
}

TEST(Background, IsSilentAfterItsEnd) {
    auto background = std::make_unique<hosts::QtBackground>();
    std::atomic<int> begun = 0;
    int done = 0;
    for (int i = 0; i < 50; ++i)
        background->Run([&] { ++begun; }, [&] { ++done; });
    background.reset();
    const int atEnd = begun;
    QCoreApplication::processEvents();
    EXPECT_EQ(done, 0);
    EXPECT_EQ(begun, atEnd);
}

TEST(Background, TakesWorkFromWhatHasBeenDone) {
    hosts::QtBackground background;
    int rounds = 0;
    std::function<void()> again = [&] {
        if (++rounds < 5) background.Run([] {}, again);
    };
    background.Run([] {}, again);
    EXPECT_TRUE(QTest::qWaitFor([&] { return rounds == 5; }, patience));
}

}  // namespace
}  // namespace kivu::tests
