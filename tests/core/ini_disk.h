#pragma once

#include <gtest/gtest.h>
#include <string>

#include "core/ini.h"
#include "host_files.h"
#include "platform/temporary_directory.h"
#include "testing/faulty_file_system.h"

namespace kivu::core {

// The store on the real disk.
class IniDiskTest : public ::testing::Test {
 protected:
    testing::TemporaryDirectory directory;
    testing::HostFileSystem disk;
    testing::FaultyFileSystem faulty{disk};
    Ini ini{faulty};
    const std::string path = directory.Path("Kivu.ini");
};

}  // namespace kivu::core
