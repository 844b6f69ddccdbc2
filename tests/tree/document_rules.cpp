#include "tree/document_rules.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <set>
#include <system_error>

#include "tree/key_rules.h"

namespace kivu::tree {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view book = "docs/book";

struct Link {
    std::string target;
    std::size_t line;
};

bool IsDocument(std::string_view path) {
    return path.ends_with(".md");
}

// What is quoted from a terminal or a file is no link.
std::string WithoutCode(std::string_view line) {
    if (line.starts_with("    ")) {
        const std::size_t text = line.find_first_not_of(' ');
        // A list within a list, or a table in one.
        const bool listed = text != std::string_view::npos &&
                            (line[text] == '-' || line[text] == '|' || line[text] == '!');
        if (!listed) return {};
    }
    std::string kept;
    bool code = false;
    for (const char c : line) {
        if (c == '`') code = !code;
        if (!code) kept += c;
    }
    return kept;
}

std::vector<Link> LinksOf(const SourceFile& file) {
    std::vector<Link> links;
    std::size_t number = 0;
    for (const std::string_view line : LinesOf(file)) {
        ++number;
        const std::string text = WithoutCode(line);
        for (std::size_t at = text.find("]("); at != std::string::npos; at = text.find("](", at)) {
            at += 2;
            const std::size_t end = text.find(')', at);
            if (end == std::string::npos) break;
            links.push_back({text.substr(at, end - at), number});
        }
    }
    return links;
}

bool LeadsOutside(std::string_view target) {
    return target.find("://") != std::string_view::npos || target.starts_with("mailto:");
}

// "docs/skins.md" of "../../skins.md" in "docs/book/en/a.md"; the file itself of nothing.
std::string PathOf(std::string_view target, const std::string& from) {
    const std::string_view path = target.substr(0, target.find('#'));
    if (path.empty()) return from;
    return (fs::path(FolderOf(from)) / path).lexically_normal().generic_string();
}

std::string HeadingOf(std::string_view target) {
    const std::size_t mark = target.find('#');
    return mark == std::string_view::npos ? std::string() : std::string(target.substr(mark + 1));
}

// A heading as links name it: small letters, "-" for blanks, no punctuation.
std::string Anchor(std::string_view heading) {
    std::string anchor;
    for (const char c : heading) {
        const bool digit = c >= '0' && c <= '9';
        const bool small = (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
        if (c >= 'A' && c <= 'Z') anchor += static_cast<char>(c - 'A' + 'a');
        if (c == ' ') anchor += '-';
        if (digit || small || c == '-' || c == '_') anchor += c;
    }
    return anchor;
}

std::set<std::string> AnchorsOf(const SourceFile& file) {
    std::set<std::string> anchors;
    for (const std::string_view line : LinesOf(file)) {
        const std::size_t text = line.find_first_not_of('#');
        if (text == 0 || text == std::string_view::npos || line[text] != ' ') continue;
        anchors.insert(Anchor(line.substr(text + 1)));
    }
    return anchors;
}

const SourceFile* FileOf(const SourceTree& tree, std::string_view path) {
    const auto file = std::find_if(tree.begin(), tree.end(),
                                   [&](const SourceFile& each) { return each.path == path; });
    return file == tree.end() ? nullptr : &*file;
}

// What the document links to inside the tree, without headings.
std::set<std::string> TargetsOf(const SourceFile& file) {
    std::set<std::string> targets;
    for (const Link& link : LinksOf(file)) {
        if (!LeadsOutside(link.target)) targets.insert(PathOf(link.target, file.path));
    }
    return targets;
}

std::string WrongAt(const SourceTree& tree, const SourceFile& file, const Link& link,
                    const IsThere& isThere) {
    const std::string path = PathOf(link.target, file.path);
    if (!isThere(path)) return "no such file";
    const std::string heading = HeadingOf(link.target);
    const SourceFile* target = FileOf(tree, path);
    if (heading.empty() || !target) return {};
    return AnchorsOf(*target).contains(heading) ? std::string() : "no such heading";
}

}  // namespace

Findings DeadLinks(const SourceTree& tree, const IsThere& isThere) {
    Findings findings;
    for (const SourceFile& file : tree) {
        if (!IsDocument(file.path)) continue;
        for (const Link& link : LinksOf(file)) {
            if (LeadsOutside(link.target)) continue;
            const std::string wrong = WrongAt(tree, file, link, isThere);
            if (wrong.empty()) continue;
            findings.push_back(file.path + ":" + std::to_string(link.line) + ": " + link.target +
                               ": " + wrong);
        }
    }
    return findings;
}

Findings UnusedPictures(const SourceTree& tree, const std::vector<std::string>& pictures) {
    std::set<std::string> used;
    for (const SourceFile& file : tree) {
        if (IsDocument(file.path)) used.merge(TargetsOf(file));
    }
    Findings findings;
    for (const std::string& picture : pictures) {
        if (!used.contains(picture)) findings.push_back(picture + ": no document shows it");
    }
    return findings;
}

namespace {

constexpr std::array<std::string_view, 2> languages{"en", "de"};

// By their numbers: "03" of "docs/book/en/03-favourites.md".
std::map<std::string, const SourceFile*> ChaptersIn(const SourceTree& tree,
                                                    std::string_view language) {
    std::map<std::string, const SourceFile*> chapters;
    const std::string folder = std::string(book) + "/" + std::string(language);
    for (const SourceFile& file : tree) {
        if (IsDocument(file.path) && FolderOf(file.path) == folder)
            chapters[file.path.substr(folder.size() + 1, 2)] = &file;
    }
    return chapters;
}

// Without the language's directory.
std::set<std::string> PictureNames(const SourceFile& chapter) {
    std::set<std::string> names;
    for (const std::string& target : TargetsOf(chapter)) {
        if (target.ends_with(".png")) names.insert(target.substr(target.rfind('/') + 1));
    }
    return names;
}

}  // namespace

Findings UnpairedChapters(const SourceTree& tree) {
    Findings findings;
    const SourceFile* contents = FileOf(tree, std::string(book) + "/README.md");
    const std::set<std::string> listed = contents ? TargetsOf(*contents) : std::set<std::string>();
    for (std::size_t i = 0; i < languages.size(); ++i) {
        const auto others = ChaptersIn(tree, languages[1 - i]);
        for (const auto& [number, chapter] : ChaptersIn(tree, languages[i])) {
            const auto other = others.find(number);
            if (!listed.contains(chapter->path))
                findings.push_back(chapter->path + ": not in the book's contents");
            if (other == others.end()) {
                findings.push_back(chapter->path + ": not in the other language");
            } else if (PictureNames(*chapter) != PictureNames(*other->second)) {
                findings.push_back(chapter->path + ": other pictures than in the other language");
            }
        }
    }
    return findings;
}

namespace {

// Names of keys that the table gives to a profile: "program, "Fontsize"".
std::set<std::string> KeyNames(std::string_view table) {
    std::set<std::string> names;
    for (const std::string_view profile : {"{program, \"", "{emulator, \"", "{skin, \""}) {
        for (std::size_t at = table.find(profile); at != std::string_view::npos;
             at = table.find(profile, at)) {
            at += profile.size();
            names.emplace(table.substr(at, table.find('"', at) - at));
        }
    }
    return names;
}

// Of a row of keys with numbers the first one is told: "`Button1` to `Button12`".
std::string ToldName(std::string name) {
    const std::size_t end = name.find_last_not_of("0123456789") + 1;
    return end < name.size() ? name.substr(0, end) + "1" : name;
}

}  // namespace

Findings UntoldKeys(const SourceTree& tree) {
    const SourceFile* table = FileOf(tree, keyTable);
    const SourceFile* document = FileOf(tree, "docs/profiles.md");
    Findings findings;
    for (const std::string& name : KeyNames(table ? table->text : std::string_view())) {
        if (!document || document->text.find("`" + ToldName(name) + "`") == std::string::npos)
            findings.push_back(name + ": docs/profiles.md does not tell it");
    }
    return findings;
}

std::vector<std::string> PicturesBelow(const std::string& root, const std::string& directory) {
    std::vector<std::string> pictures;
    std::error_code error;
    for (fs::recursive_directory_iterator entry(fs::path(root) / directory, error), end;
         !error && entry != end; entry.increment(error)) {
        if (entry->path().extension() == ".png")
            pictures.push_back(entry->path().lexically_relative(root).generic_string());
    }
    std::sort(pictures.begin(), pictures.end());
    return pictures;
}

}  // namespace kivu::tree
