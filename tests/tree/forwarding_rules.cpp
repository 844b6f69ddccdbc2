#include "tree/forwarding_rules.h"

#include <map>
#include <regex>

namespace kivu::tree {

namespace {

struct Class {
    std::string name;
    std::string service;  // of platform, that it is; empty: none
    std::string text;
};

std::vector<Class> ClassesOf(const SourceFile& file) {
    static const std::regex head(R"(\nclass (\w+)( : public platform::(\w+))? \{)");
    std::vector<Class> classes;
    for (std::sregex_iterator at(file.text.begin(), file.text.end(), head), end; at != end; ++at) {
        const auto begin = static_cast<std::size_t>(at->position());
        const std::size_t length = file.text.find("\n};", begin) - begin;
        classes.push_back({(*at)[1], (*at)[3], file.text.substr(begin, length)});
    }
    return classes;
}

// Those of classes within the class stand further in.
std::vector<std::string> CallsOf(const Class& service) {
    static const std::regex call(R"(\n    virtual [^~(]*?(\w+)\()");
    std::vector<std::string> calls;
    const std::string& text = service.text;
    for (std::sregex_iterator at(text.begin(), text.end(), call), end; at != end; ++at)
        calls.push_back((*at)[1]);
    return calls;
}

bool Declares(const Class& front, const std::string& call) {
    const std::regex declaration("\\b" + call + "\\([^;{]*\\) (const )?override");
    return std::regex_search(front.text, declaration);
}

}  // namespace

Findings UnforwardedCalls(const SourceTree& tree) {
    std::map<std::string, std::vector<std::string>> services;
    for (const SourceFile& file : tree) {
        if (!IsBelow(file.path, "src/platform") || !IsHeader(file.path)) continue;
        for (const Class& service : ClassesOf(file))
            services[service.name] = CallsOf(service);
    }
    Findings findings;
    for (const SourceFile& file : tree) {
        if (!IsBelow(file.path, "src") || !IsHeader(file.path)) continue;
        for (const Class& front : ClassesOf(file)) {
            const bool isFront =
                front.text.find("platform::" + front.service + "& ") != std::string::npos;
            if (front.service.empty() || !isFront) continue;
            for (const std::string& call : services[front.service]) {
                if (!Declares(front, call))
                    findings.push_back(file.path + ": " + front.name + " lacks " + call);
            }
        }
    }
    return findings;
}

}  // namespace kivu::tree
