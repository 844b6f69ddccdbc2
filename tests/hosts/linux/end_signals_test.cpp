#include "hosts/linux/end_signals.h"

#include <csignal>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kivu::hosts {
namespace {

bool IsReadable(int fd) {
    pollfd wait{fd, POLLIN, 0};
    return ::poll(&wait, 1, 0) == 1;
}

TEST(EndSignals, EachOfThemIsHeardOnce) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        EndSignals signals;
        EXPECT_FALSE(IsReadable(signals.WaitFd())) << signal;
        EXPECT_FALSE(signals.Take()) << signal;
        ::raise(signal);
        EXPECT_TRUE(IsReadable(signals.WaitFd())) << signal;
        EXPECT_TRUE(signals.Take()) << signal;
        EXPECT_FALSE(IsReadable(signals.WaitFd())) << signal;
        EXPECT_FALSE(signals.Take()) << signal;
    }
}

TEST(EndSignals, ManyOfThemAreOneWish) {
    EndSignals signals;
    for (int i = 0; i < 70000; ++i)
        ::raise(i % 2 ? SIGTERM : SIGHUP);
    EXPECT_TRUE(signals.Take());
    EXPECT_FALSE(signals.Take());
}

TEST(EndSignals, OneThatWasToBeIgnoredStaysIgnored) {
    ::signal(SIGHUP, SIG_IGN);
    {
        EndSignals signals;
        ::raise(SIGHUP);
        EXPECT_FALSE(signals.Take());
        ::raise(SIGTERM);
        EXPECT_TRUE(signals.Take());
    }
    EXPECT_EQ(::signal(SIGHUP, SIG_DFL), SIG_IGN);
}

TEST(EndSignals, AfterItTheyEndTheProcessAgain) {
    { EndSignals signals; }
    const pid_t child = ::fork();
    if (child == 0) {
        ::raise(SIGTERM);
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGTERM);
}

TEST(EndSignals, OneToAChildIsNoneToTheParent) {
    EndSignals signals;
    const pid_t child = ::fork();
    if (child == 0) {
        ::raise(SIGTERM);
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_FALSE(signals.Take());
}

}  // namespace
}  // namespace kivu::hosts
