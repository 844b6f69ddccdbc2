// The start helpers' files as /bin/sh runs them.
#include <filesystem>
#include <gmock/gmock.h>

#include "launch/mount_file.h"
#include "launch/start_script.h"
#include "run_program.h"
#include "testing/environment_variable.h"
#include "testing/temporary_directory.h"
#include "text/text.h"

namespace kivu::launch {
namespace {

using ::testing::ElementsAre;

class HelperFilesPosix : public ::testing::Test {
 protected:
    // A program that writes down how it is called: its words, each in a line behind "<".
    std::string Recorder(const std::string& name) {
        const std::string path =
            directory.Write(name, "#!/bin/sh\nprintf '<%s>' \"$@\" >> '" + Record() + "'\n");
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
        return path;
    }
    std::string Record() const { return directory.Path("record"); }
    // Runs the text as a start file, and gives what has been written down.
    std::string Run(const std::string& text) {
        const std::string file = directory.Write("MountDeamon.bat", text);
        testing::RunProgram({"/bin/sh", file}, "/dev/null");
        return directory.Read("record");
    }

    testing::TemporaryDirectory directory;
};

TEST_F(HelperFilesPosix, TheToolGetsBothCallsWhateverTheNamesHold) {
    const std::string evil = "/r/ $(touch x) `y` ';\"&|<>*?~#!%^\\ \nnew\xC3\xBC\xFF.iso";
    const std::string tool = Recorder("my 'tool' $(z)");
    EXPECT_EQ(Run(MountFileForShell(tool, evil, "").text),
              "<-unmount><0><-mount><0,><" + evil + ">");
    EXPECT_EQ(directory.Count(), 3U);
}

TEST_F(HelperFilesPosix, CdemuGetsItsOwnWords) {
    EXPECT_EQ(Run(MountFileForShell(Recorder("cdemu"), "/r/it's.iso", "").text),
              "<unload><0><load><0></r/it's.iso>");
}

TEST_F(HelperFilesPosix, FuseisoMountsAlsoWhereNothingWasMounted) {
    // fusermount has nothing to take out, or is not installed: the second line runs all the same.
    EXPECT_EQ(Run(MountFileForShell(Recorder("fuseiso"), "/r/a b.iso", directory.Path("cd0")).text),
              "<-p></r/a b.iso><" + directory.Path("cd0") + ">");
}

TEST_F(HelperFilesPosix, AToolThatCannotBeStartedStopsNothing) {
    EXPECT_EQ(Run(MountFileForShell(directory.Write("plain", "no program"), "/r/a", "").text + "'" +
                  Recorder("next") + "' 'ran'\n"),
              "<ran>");
}

TEST_F(HelperFilesPosix, AScriptRunsByItsFirstLineWithoutARightToRun) {
    std::filesystem::create_directory(directory.Path("it's a $(dir)"));
    const std::string bytes = "#!" + Recorder("interpreter") + " one argument\r\nanything\r\n";
    const std::string script = directory.Write("it's a $(dir)/Startscript.vbs", bytes);
    EXPECT_EQ(Run(ScriptRunnerForShell(ScriptWords(script, bytes))),
              "<one argument><" + script + ">");
}

// docs/ holds it for users to copy.
TEST_F(HelperFilesPosix, TheAdapterForUdisksTakesTheLastImageOutFirst) {
    const std::string udisks = directory.Write(
        "udisksctl", "#!/bin/sh\nprintf '%s|' \"$@\" >> '" + Record() + "'\necho >> '" + Record() +
                         "'\n[ \"$1\" != loop-setup ] || echo \"Mapped file $4 as /dev/loop7.\"\n");
    std::filesystem::permissions(udisks, std::filesystem::perms::owner_all);
    const std::string adapter = directory.Path("mount 'adapter'.sh");
    std::filesystem::copy_file(KIVU_DOCS "/mount-udisksctl.sh", adapter);
    std::filesystem::permissions(adapter, std::filesystem::perms::owner_all);
    const testing::EnvironmentVariable path("PATH", directory.Root() + ":/usr/bin:/bin");
    const testing::EnvironmentVariable runtime("XDG_RUNTIME_DIR", directory.Root());
    const std::string mounted =
        "loop-setup|--read-only|--file|/r/it's as /dev/x.iso|\n"
        "mount|--block-device|/dev/loop7|\n";
    const std::string text = MountFileForShell(adapter, "/r/it's as /dev/x.iso", "").text;
    EXPECT_EQ(Run(text), mounted);
    EXPECT_EQ(Run(text), mounted +
                             "unmount|--block-device|/dev/loop7|\n"
                             "loop-delete|--block-device|/dev/loop7|\n" +
                             mounted);
}

}  // namespace
}  // namespace kivu::launch
