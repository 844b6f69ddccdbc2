#include "tree/forwarding_rules.h"

#include <gmock/gmock.h>

namespace kivu::tree {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

SourceFile Service() {
    return {
        "src/platform/lamp.h",
        "#pragma once\n\nclass Lamp {\n public:\n    virtual ~Lamp() = default;\n"
        "    virtual void On() = 0;\n"
        "    virtual std::vector<int> Colours(int a,\n                 int b) const {\n"
        "        return {};\n    }\n    class Bulb {\n        virtual void Glow() = 0;\n    };\n"
        "};\n"};
}

SourceFile Front(const std::string& calls) {
    return {"src/support/logged_lamp.h",
            "\nclass LoggedLamp : public platform::Lamp {\n public:\n" + calls +
                "    platform::Lamp& lamp;\n};\n"};
}

TEST(ForwardingRules, AFrontPassesEveryCallOn) {
    EXPECT_THAT(UnforwardedCalls({Service(), Front("    void On() override { lamp.On(); }\n"
                                                   "    std::vector<int> Colours(int a,\n"
                                                   "        int b) const override;\n")}),
                IsEmpty());
}

TEST(ForwardingRules, ACallThatIsLeftOutIsFound) {
    EXPECT_THAT(
        UnforwardedCalls({Service(), Front("    void On() override { lamp.Colours(); }\n")}),
        ElementsAre("src/support/logged_lamp.h: LoggedLamp lacks Colours"));
}

TEST(ForwardingRules, AHostIsNoFront) {
    EXPECT_THAT(
        UnforwardedCalls(
            {Service(), {"src/hosts/lamp_linux.h", "\nclass L : public platform::Lamp {\n};\n"}}),
        IsEmpty());
}

TEST(ForwardingRules, ThisTreesFrontsPassEveryCallOn) {
    const SourceTree tree = ReadTree(KIVU_SOURCE_DIR);
    EXPECT_EQ(Joined(UnforwardedCalls(tree)), "");
    // And they are seen.
    SourceTree without;
    for (const SourceFile& file : tree) {
        if (file.path != "src/support/logged_files.h") {
            without.push_back(file);
            continue;
        }
        std::string text = file.text;
        text.replace(text.find("bool IsLink("), 4, "void");
        text.replace(text.find("IsLink("), 6, "IsLynx");
        without.push_back({file.path, text});
    }
    EXPECT_EQ(Joined(UnforwardedCalls(without)),
              Joined({"src/support/logged_files.h: LoggedFiles lacks IsLink"}));
}

}  // namespace
}  // namespace kivu::tree
