#include "launch/start_script.h"

#include <gmock/gmock.h>

#include "testing/md5.h"
#include "testing/memory_file_system.h"

namespace kivu::launch {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

TEST(StartScriptTemplateTest, IsKnownByItsBytes) {
    EXPECT_EQ(StartScriptTemplate("winuae.exe").size(), 350U);
    EXPECT_EQ(testing::Md5::Of(StartScriptTemplate("winuae.exe")),
              "36924967ff02bceb627e6572844c0ba9");
    EXPECT_EQ(StartScriptTemplate("dosbox").size(), 350U);
    EXPECT_EQ(testing::Md5::Of(StartScriptTemplate("dosbox")), "e4150029a3f285a1784969691ac5e1bd");
}

TEST(StartScriptTemplateTest, OnlyAnEndingOfThreeLettersIsCutOff) {
    const auto title = [](const std::string& name) {
        const std::string script = StartScriptTemplate(name);
        constexpr std::string_view head = "' === Startscript for ";
        EXPECT_THAT(script, StartsWith(head));
        const std::string line = script.substr(head.size(), script.find("\r\n") - head.size());
        EXPECT_TRUE(line.ends_with(" ==="));
        return line.substr(0, line.size() - 4);
    };
    EXPECT_EQ(title("a.b.exe"), "a.b");
    EXPECT_EQ(title("retroarch"), "retroarch");
    EXPECT_EQ(title("mame64"), "mame64");
    EXPECT_EQ(title("x.sh"), "x.sh");
    EXPECT_EQ(title("abc"), "abc");
    EXPECT_EQ(title(".exe"), "");
    EXPECT_EQ(title(""), "");
    // Letters are counted, and not their bytes.
    EXPECT_EQ(title("m\xC3\xBC.\xC3\xA4\xC3\xB6\xC3\xBC"), "m\xC3\xBC");
    EXPECT_EQ(title("\xC3\xA4.x\xC3\xB6"), "\xC3\xA4.x\xC3\xB6");
}

TEST(StartScriptTemplateTest, NoNameGetsOutOfItsText) {
    EXPECT_THAT(StartScriptTemplate("a\" & evil() & \"b.exe"),
                HasSubstr("ws.AppActivate \"a\"\" & evil() & \"\"b\"\r\n"));
    EXPECT_THAT(StartScriptTemplate("a\nevil\rb.exe"),
                StartsWith("' === Startscript for a evil b ===\r\n"));
}

TEST(FindStartScriptTest, CapitalsDoNotMatter) {
    testing::MemoryFileSystem files;
    EXPECT_EQ(FindStartScript(files, "/k/Startscript.vbs"), std::nullopt);
    EXPECT_EQ(FindStartScript(files, ""), std::nullopt);
    files.AddDirectory("/k/STARTSCRIPT.VBS");
    EXPECT_EQ(FindStartScript(files, "/k/Startscript.vbs"), std::nullopt);
    files.AddFile("/k/startscript.vbs", "");
    files.AddFile("/k/startScript.vbs", "");
    files.AddFile("/k/Startscript.vbs.bak", "");
    EXPECT_EQ(FindStartScript(files, "/k/Startscript.vbs"), "/k/startScript.vbs");
    files.AddFile("/k/Startscript.vbs", "");
    EXPECT_EQ(FindStartScript(files, "/k/Startscript.vbs"), "/k/Startscript.vbs");
}

TEST(ScriptRunnerTest, IsTheScriptsPathForCmd) {
    EXPECT_EQ(ScriptRunnerForCmd("C:\\Kivu\\Startscript.vbs"), "C:\\Kivu\\Startscript.vbs\r\n");
    EXPECT_EQ(ScriptRunnerForCmd("C:\\My Kivu\\Startscript.vbs"),
              "\"C:\\My Kivu\\Startscript.vbs\"\r\n");
    EXPECT_EQ(ScriptRunnerForCmd("C:\\R&D\\Startscript.vbs"), "\"C:\\R&D\\Startscript.vbs\"\r\n");
    EXPECT_EQ(ScriptRunnerForCmd("C:\\100%\\Startscript.vbs"), "C:\\100%%\\Startscript.vbs\r\n");
    EXPECT_EQ(ScriptRunnerForCmd("C:\\a\nb\\Startscript.vbs"), std::nullopt);
}

const std::string script = "/k/Config/A/Startscript.vbs";

TEST(ScriptRunnerTest, AShellRunsWhatTheFirstLineNames) {
    const auto words = ScriptWords(script, "#!/usr/bin/env python3\nprint()\n");
    EXPECT_EQ(ScriptRunnerForShell(words),
              "'/usr/bin/env' 'python3' '/k/Config/A/Startscript.vbs'\n");
}

TEST(ScriptRunnerTest, TheFirstLineIsReadAsTheKernelReadsIt) {
    EXPECT_THAT(ScriptWords(script, "#!/bin/sh\r\n"), ElementsAre("/bin/sh", script));
    EXPECT_THAT(ScriptWords(script, "#!/bin/sh"), ElementsAre("/bin/sh", script));
    EXPECT_THAT(ScriptWords(script, "#! \t/bin/sh -e\t \r\n"),
                ElementsAre("/bin/sh", "-e", script));
    // All that follows is one argument.
    EXPECT_THAT(ScriptWords(script, "#!/usr/bin/env -S python3 -u\n"),
                ElementsAre("/usr/bin/env", "-S python3 -u", script));
    EXPECT_THAT(ScriptWords(script, std::string("#!/bin/sh\0x\n", 12)),
                ElementsAre("/bin/sh", script));
}

TEST(ScriptRunnerTest, EverythingElseIsForWinesScriptHost) {
    const std::string path = "Z:\\k\\Config\\A\\Startscript.vbs";
    for (const char* head : {"", "' === Startscript", " #!/bin/sh\n", "\xEF\xBB\xBF#!/bin/sh\n",
                             "#!", "#!\n/bin/sh\n", "#! \r\n", "#"})
        EXPECT_THAT(ScriptWords(script, head), ElementsAre("wine", "cscript", path)) << head;
    EXPECT_EQ(ScriptRunnerForShell(ScriptWords("/k/it's/S.vbs", "")),
              "'wine' 'cscript' 'Z:\\k\\it'\\''s\\S.vbs'\n");
}

}  // namespace
}  // namespace kivu::launch
