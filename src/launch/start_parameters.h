#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kivu::launch {

// The growing parameters of one launch, in the three forms that hosts need: the plain text, the
// text for a batch file, in which no character of a path is acted upon, and the list of words.
class StartParameters {
 public:
    // `translatePaths`: the emulator is a Windows program on a POSIX host, and takes Z:\ paths.
    explicit StartParameters(bool translatePaths = false) : translatePaths(translatePaths) {}

    // A text that the user has typed: it stands as it is, and splits as Windows splits a command
    // line.
    void AppendTyped(std::string_view typed);
    // A path, quoted or not as the launch has decided; always one word, whatever it holds.
    void AppendPath(std::string_view quotedOrPlain, std::string_view path);
    // One blank in front and behind.
    void Pad();

    const std::string& Text() const { return text; }
    const std::string& BatchText() const { return batchText; }
    const std::vector<std::string>& Words() const { return words; }
    // False: a path cannot be written into a batch file without being acted upon.
    bool IsBatchSafe() const { return batchSafe; }
    // True: no path in them holds a character that cmd.exe acts upon, quoted or not.
    bool HasPlainPaths() const { return plainPaths; }

 private:
    bool translatePaths;
    bool batchSafe = true;
    bool plainPaths = true;
    std::string text;
    std::string batchText;
    std::vector<std::string> words;
};

// A path in a batch file's line; the plain form where nothing makes it harmless (`safe` becomes
// false).
std::string BatchWord(std::string_view quotedOrPlain, bool& safe);

// The command line of a start file: "Start", an empty title, the emulator and its parameters.
std::string StartCommand(std::string_view emulator, std::string_view parameters);

// Two lines for cmd.exe, ended by CR LF. Both texts stand as they are.
std::string BatchStartFile(std::string_view directory, std::string_view startCommand);

// The same two steps for /bin/sh, ended by LF: change the directory, left out when it is empty, and
// start the words without waiting. Every word is quoted.
std::string ShellStartFile(std::string_view directory, const std::vector<std::string>& words);

}  // namespace kivu::launch
