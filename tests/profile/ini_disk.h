#pragma once

#include <gtest/gtest.h>
#include <string>

#include "host_files.h"
#include "profile/ini.h"
#include "testing/faulty_file_system.h"
#include "testing/temporary_directory.h"

namespace kivu::profile {

// The store on the real disk.
class IniDiskTest : public ::testing::Test {
 protected:
    testing::TemporaryDirectory directory;
    testing::HostFileSystem disk;
    testing::FaultyFileSystem faulty{disk};
    Ini ini{faulty};
    const std::string path = directory.Path("Kivu.ini");
};

}  // namespace kivu::profile
