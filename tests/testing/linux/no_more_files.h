#pragma once

#include <sys/resource.h>

namespace kivu::testing {

// While it lives, the program can open no file beyond those it has.
class NoMoreFiles {
 public:
    NoMoreFiles() {
        ::getrlimit(RLIMIT_NOFILE, &before);
        const rlimit none{0, before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoMoreFiles() { ::setrlimit(RLIMIT_NOFILE, &before); }
    NoMoreFiles(const NoMoreFiles&) = delete;
    NoMoreFiles& operator=(const NoMoreFiles&) = delete;

 private:
    rlimit before{};
};

}  // namespace kivu::testing
