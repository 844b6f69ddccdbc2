#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "host_instance.h"

// What the launcher relies on in each host's instances.
namespace kivu::testing {
namespace {

class InstanceContract : public ::testing::TestWithParam<int> {
 protected:
    using Instance = HostInstances::Instance;
    const std::string program = HostInstances::ProgramName();
    const HostInstances instances{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(, InstanceContract, ::testing::Range(0, HostInstances::ways),
                         [](const auto& way) { return "Way" + std::to_string(way.param); });

TEST_P(InstanceContract, TheSecondAsksTheFirstToComeUp) {
    Instance first(program);
    EXPECT_FALSE(first.HandOver("Kivu", ""));
    int summons = 0;
    first.OnSummoned([&](const std::string&) { ++summons; });
    HostInstances::Serve(first);
    EXPECT_EQ(summons, 0);
    EXPECT_TRUE(Instance(program).HandOver("Kivu", ""));
    EXPECT_EQ(summons, 0);
    HostInstances::Serve(first);
    EXPECT_EQ(summons, 1);
    HostInstances::Serve(first);
    EXPECT_EQ(summons, 1);
}

TEST_P(InstanceContract, TheFileOfALaterOneIsHandedOver) {
    Instance first(program);
    ASSERT_FALSE(first.HandOver("Kivu", "/roms/own.adf"));
    std::vector<std::string> files;
    first.OnSummoned([&](const std::string& file) { files.push_back(file); });
    const std::string odd = "/roms/Bär \"x\"\n$(y).adf";
    const std::string longest = "/" + std::string(platform::Instance::maxFile - 1, 'n');
    for (const std::string& file : {std::string(), odd, longest}) {
        EXPECT_TRUE(Instance(program).HandOver("Kivu", file));
        HostInstances::Serve(first);
    }
    EXPECT_EQ(files, (std::vector<std::string>{"", odd, longest}));
    EXPECT_TRUE(Instance(program).HandOver("Kivu", longest + "n"));
    HostInstances::Serve(first);
    EXPECT_EQ(files.back(), "") << "longer than any path";
}

TEST_P(InstanceContract, ACallBeforeAnybodyListensIsNotLost) {
    Instance first(program);
    ASSERT_FALSE(first.HandOver("Kivu", ""));
    EXPECT_TRUE(Instance(program).HandOver("Kivu", ""));
    EXPECT_TRUE(Instance(program).HandOver("Kivu", ""));
    HostInstances::Serve(first);
    int summons = 0;
    first.OnSummoned([&](const std::string&) { ++summons; });
    EXPECT_EQ(summons, 1);
}

TEST_P(InstanceContract, AskingTwiceDoesNotFindItself) {
    Instance first(program);
    EXPECT_FALSE(first.HandOver("Kivu", ""));
    EXPECT_FALSE(first.HandOver("Kivu", ""));
}

TEST_P(InstanceContract, AnotherProgramNameIsAnotherInstance) {
    Instance first(program);
    EXPECT_FALSE(first.HandOver("Kivu", ""));
    EXPECT_FALSE(Instance(program + "-1.4").HandOver("Kivu", ""));
}

TEST_P(InstanceContract, AnotherDirectoryOfTheProgramIsAnotherInstance) {
    Instance installed(program, "/home/u/.local/share/Kivu");
    Instance portable(program, "/media/stick/Kivu");
    EXPECT_FALSE(installed.HandOver("Kivu", ""));
    EXPECT_FALSE(portable.HandOver("Kivu", ""));
    EXPECT_TRUE(Instance(program, "/media/stick/Kivu").HandOver("Kivu", "/a.adf"));
    std::vector<std::string> files;
    portable.OnSummoned([&](const std::string& file) { files.push_back(file); });
    installed.OnSummoned([&](const std::string&) { files.push_back("the wrong one"); });
    HostInstances::Serve(portable);
    HostInstances::Serve(installed);
    EXPECT_EQ(files, std::vector<std::string>{"/a.adf"});
    EXPECT_FALSE(Instance(program).HandOver("Kivu", ""));
}

TEST_P(InstanceContract, ADirectoryOfAnyBytesAndLengthWorks) {
    const std::string longest = "/" + std::string(4000, 'd');
    for (const std::string& directory : {longest, std::string("/\xff\n"), std::string("/")}) {
        Instance first(program, directory);
        EXPECT_FALSE(first.HandOver("Kivu", ""));
        EXPECT_TRUE(Instance(program, directory).HandOver("Kivu", ""));
    }
}

TEST_P(InstanceContract, AfterTheFirstHasEndedTheNextIsFirst) {
    {
        Instance first(program);
        EXPECT_FALSE(first.HandOver("Kivu", ""));
    }
    Instance next(program);
    EXPECT_FALSE(next.HandOver("Kivu", ""));
    EXPECT_TRUE(Instance(program).HandOver("Kivu", ""));
}

}  // namespace
}  // namespace kivu::testing
