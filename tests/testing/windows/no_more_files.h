#pragma once

#include <cstdio>
#include <vector>

namespace kivu::testing {

// While it lives, the program can open no file beyond those it has.
class NoMoreFiles {
 public:
    NoMoreFiles() {
        while (std::FILE* file = std::fopen("NUL", "rb")) {
            files.push_back(file);
        }
    }
    ~NoMoreFiles() {
        for (std::FILE* file : files) {
            std::fclose(file);
        }
    }
    NoMoreFiles(const NoMoreFiles&) = delete;
    NoMoreFiles& operator=(const NoMoreFiles&) = delete;

 private:
    std::vector<std::FILE*> files;
};

}  // namespace kivu::testing
