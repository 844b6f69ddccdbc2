#include "text/file_names.h"

namespace kivu::text {
namespace {

TEST(FileNames, DevicesAreFoundInEveryDirectory) {
    for (const char* name : {"con", "CON", "Prn", "AUX", "nul", "NUL.txt", "nul .txt", "com1",
                             "COM9.tar.gz", "lpt5", "CONIN$", "conout$.x", "com\xC2\xB9", "nul:x"})
        EXPECT_TRUE(IsDeviceName(name)) << name;
    for (const char* name : {"", "con1", "con_", "com", "com0", "com10", "lpt", "lptx", "x.nul",
                             "console", "comx", "com\xC3\xBC"})
        EXPECT_FALSE(IsDeviceName(name)) << name;
}

TEST(FileNames, SafeOnesStayInTheirDirectory) {
    for (const char* name :
         {"x.zip", "x", ".hidden", "it's 100% (new) & good;$.zip", " x", "-x", "..x",
          "b\xC3\xBC"
          "cher.zip",
          "b\xFC"
          "cher.zip"})
        EXPECT_TRUE(IsSafeFileName(name)) << name;
    for (const char* name :
         {"",   ".",  "..",  "...", "x.", "x ", "a/b",  "a\\b", "..\\e.exe", "c:x",
          "a*", "a?", "a\"", "a<",  "a>", "a|", "a\tb", "a\nb", "a\x7F",     "nul"})
        EXPECT_FALSE(IsSafeFileName(name)) << name;
    EXPECT_FALSE(IsSafeFileName(std::string_view("a\0b", 3)));
}

}  // namespace
}  // namespace kivu::text
