#include "hosts/windows/process_list_windows.h"

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <map>

#include "hosts/windows/program_starter_windows.h"
#include "hosts/windows/started_program.h"
#include "launch/prozess.h"

namespace kivu::hosts {
namespace {

using kivu::testing::Eventually;
using kivu::testing::ScratchDirectory;
using kivu::testing::StartedPrograms;
using launch::Reach;

class ProcessListWindows : public ::testing::Test {
 protected:
    ProcessListWindows() { StartedPrograms::Instance(); }
    ~ProcessListWindows() override { StartedPrograms::Instance().Kill(); }

    // A name that no other program on the machine has.
    static std::string Unique(const std::string& name) {
        return "Kivu " + std::to_string(::GetCurrentProcessId()) + " " + name;
    }
    // A program of that name runs from now on, until it is killed.
    void Start(const std::string& name) {
        kivu::testing::CopyHelper(L"stay", disk.Path(name));
        platform::StartRequest request;
        request.command = disk.Path(name);
        request.words = {request.command};
        EXPECT_FALSE(starter.Run(request));
    }
    static std::string OwnName() {
        std::array<wchar_t, 4096> path{};
        ::GetModuleFileNameW(nullptr, path.data(), 4096);
        const std::string text = Narrow(path.data());
        return text.substr(text.rfind('\\') + 1);
    }

    ScratchDirectory disk;
    WindowsProgramStarter starter;
    WindowsProcessList list;
    launch::Prozess prozess{list};
};

TEST_F(ProcessListWindows, ARunningProgramIsFoundByItsNameAndKilled) {
    const std::string name = Unique("Größe (1).exe");
    EXPECT_FALSE(prozess.IsProcessRunning(name, Reach::andLaunch));
    EXPECT_EQ(prozess.FindProcessId(name, Reach::andLaunch), 0);
    Start(name);
    EXPECT_TRUE(prozess.IsProcessRunning(name, Reach::andLaunch));
    EXPECT_TRUE(
        prozess.IsProcessRunning("C:\\elsewhere\\" + Unique("GRÖßE (1).EXE"), Reach::nameOnly));
    EXPECT_FALSE(prozess.IsProcessRunning(Unique("Größe"), Reach::andLaunch));
    const auto id = prozess.FindProcessId(Unique("größe"), Reach::nameOnly);
    EXPECT_NE(id, 0);
    EXPECT_EQ(prozess.FindProcessId(name, Reach::nameOnly), id);

    const Handle process(::OpenProcess(SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION, FALSE,
                                       static_cast<DWORD>(id)));
    ASSERT_TRUE(process);
    prozess.KillProcess(id);
    EXPECT_EQ(::WaitForSingleObject(process.Get(), 30 * 1000), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeProcess(process.Get(), &code);
    EXPECT_EQ(code, 1u);
    EXPECT_TRUE(Eventually([&] { return !prozess.IsProcessRunning(name, Reach::andLaunch); }));
    EXPECT_EQ(prozess.FindProcessId(name, Reach::nameOnly), 0);
    prozess.KillProcess(id);
}

TEST_F(ProcessListWindows, OfTwoOfANameOneIsKilledAtATime) {
    const std::string name = Unique("twins.exe");
    Start(name);
    const auto first = prozess.FindProcessId(name, Reach::nameOnly);
    const platform::StartRequest again{
        .command = "\"" + disk.Path(name) + "\"", .words = {}, .directory = {}};
    EXPECT_FALSE(starter.Run(again));
    prozess.KillProcess(first);
    EXPECT_TRUE(Eventually([&] {
        const auto left = prozess.FindProcessId(name, Reach::nameOnly);
        return left != 0 && left != first;
    }));
    prozess.KillProcess(prozess.FindProcessId(name, Reach::nameOnly));
    EXPECT_TRUE(Eventually([&] { return !prozess.IsProcessRunning(name, Reach::nameOnly); }));
}

TEST_F(ProcessListWindows, TheLauncherItselfIsForeignAndNeverKilled) {
    const auto entries = list.Snapshot();
    ASSERT_TRUE(entries);
    const auto own =
        std::find_if(entries->begin(), entries->end(), [](const platform::ProcessEntry& entry) {
            return entry.id == static_cast<std::int32_t>(::GetCurrentProcessId());
        });
    ASSERT_NE(own, entries->end());
    EXPECT_TRUE(own->foreign);
    EXPECT_FALSE(own->ofLaunch);
    EXPECT_THAT(own->names, ::testing::ElementsAre(OwnName()));
    EXPECT_EQ(prozess.FindProcessId(OwnName(), Reach::andLaunch), 0);
    EXPECT_FALSE(prozess.IsProcessRunning(OwnName(), Reach::andLaunch));
    list.Kill(static_cast<std::int32_t>(::GetCurrentProcessId()));
}

TEST_F(ProcessListWindows, IdsThatNameNoProcessAreNoHarm) {
    for (const std::int32_t id : {0, -1, 1, 0x7FFFFFFC})
        list.Kill(id);
    EXPECT_TRUE(list.Snapshot());
}

// What the system would tell about made-up processes.
struct Facts {
    std::map<std::uint32_t, std::uint64_t> startTimes;
    std::map<std::uint32_t, std::uint32_t> sessions;

    ProcessQuestions Questions() const {
        return {[this](std::uint32_t id) { return Find(startTimes, id); },
                [this](std::uint32_t id) { return Find(sessions, id); }};
    }
    template <typename Map>
    static std::optional<typename Map::mapped_type> Find(const Map& map, std::uint32_t id) {
        const auto found = map.find(id);
        return found == map.end() ? std::nullopt : std::optional(found->second);
    }
};

std::vector<std::int32_t> ForeignIds(const std::vector<SnapshotRow>& rows, std::uint32_t own,
                                     const Facts& facts) {
    std::vector<std::int32_t> ids;
    for (const platform::ProcessEntry& entry : EntriesOf(rows, own, facts.Questions())) {
        if (entry.foreign) ids.push_back(entry.id);
    }
    return ids;
}

using ::testing::UnorderedElementsAre;

TEST(EntriesOfWindows, KeepNamesAndIdsAndLeaveOutWhatIsNoProcess) {
    const auto entries =
        EntriesOf({{0, 0, "[System Process]"}, {4, 0, "System"}, {8, 4, ""}, {12, 4, "a.exe"}}, 99,
                  Facts().Questions());
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[1].id, 12);
    EXPECT_THAT(entries[1].names, ::testing::ElementsAre("a.exe"));
    EXPECT_FALSE(entries[1].foreign || entries[1].ofLaunch);
}

TEST(EntriesOfWindows, ProcessesThatTheLauncherHangsFromAreForeign) {
    const std::vector<SnapshotRow> rows = {{10, 4, "explorer.exe"},
                                           {20, 10, "cmd.exe"},
                                           {30, 20, "Kivu.exe"},
                                           {40, 30, "cmd.exe"},
                                           {50, 20, "other.exe"}};
    EXPECT_THAT(ForeignIds(rows, 30, {{{10, 1}, {20, 2}, {30, 3}, {40, 4}, {50, 4}}, {}}),
                UnorderedElementsAre(10, 20, 30));
}

TEST(EntriesOfWindows, AnIdThatALaterProcessHasTakenOverIsNoParent) {
    const std::vector<SnapshotRow> rows = {{20, 10, "emulator.exe"}, {30, 20, "Kivu.exe"}};
    EXPECT_THAT(ForeignIds(rows, 30, {{{20, 7}, {30, 3}}, {}}), UnorderedElementsAre(30));
    EXPECT_THAT(ForeignIds(rows, 30, {{{30, 3}}, {}}), UnorderedElementsAre(30));
}

TEST(EntriesOfWindows, ACircleOfParentsEnds) {
    const std::vector<SnapshotRow> rows = {
        {20, 30, "a.exe"}, {30, 20, "Kivu.exe"}, {40, 40, "b.exe"}};
    EXPECT_THAT(ForeignIds(rows, 30, {{{20, 3}, {30, 3}}, {}}), UnorderedElementsAre(20, 30));
    EXPECT_THAT(ForeignIds(rows, 40, {{{40, 3}}, {}}), UnorderedElementsAre(40));
}

TEST(EntriesOfWindows, OtherSessionsAreForeignAndUnknownOnesAreNot) {
    const std::vector<SnapshotRow> rows = {
        {20, 4, "emu.exe"}, {30, 4, "Kivu.exe"}, {40, 4, "emu.exe"}, {50, 4, "emu.exe"}};
    EXPECT_THAT(ForeignIds(rows, 30, {{}, {{20, 1}, {30, 1}, {40, 2}}}),
                UnorderedElementsAre(30, 40));
    EXPECT_THAT(ForeignIds(rows, 30, {{}, {{20, 1}, {40, 2}}}), UnorderedElementsAre(30));
}

}  // namespace
}  // namespace kivu::hosts
