#include <gtest/gtest.h>
#include <string>

#include "hosts/windows/program_directory_windows.h"
#include "hosts/windows/scratch_directory.h"
#include "hosts/windows/standard_stream.h"

namespace kivu::hosts {
namespace {

TEST(StandardStreamWindows, WhatItWasGivenGetsTheBytes) {
    testing::ScratchDirectory directory;
    for (const DWORD which : {STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
        const HANDLE before = ::GetStdHandle(which);
        const Handle file(::CreateFileW(directory.WidePath("said").c_str(), GENERIC_WRITE,
                                        FILE_SHARE_READ, nullptr, CREATE_ALWAYS, 0, nullptr));
        ::SetStdHandle(which, file.Get());
        StandardStream stream(which);
        EXPECT_TRUE(stream.Write("Kivu 1.4.0\n"));
        EXPECT_TRUE(stream.Write("wählt"));
        ::SetStdHandle(which, before);
        EXPECT_EQ(directory.Read("said"), "Kivu 1.4.0\nwählt");
    }
}

TEST(StandardStreamWindows, TheProgramsOwnNameIsNoArgument) {
    for (const std::string& argument : ProgramArguments())
        EXPECT_NE(argument, ProgramFile());
}

}  // namespace
}  // namespace kivu::hosts
