// The scripted host: answers for boxes, what has been started, processes, clock, display.

#include <array>
#include <cstdio>
#include <optional>
#include <utility>

#include "driver/commands.h"
#include "driver/time_text.h"

namespace kivu::driver {

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;
using platform::WindowStyle;

const char* Name(Answer answer) {
    switch (answer) {
        case Answer::Ok:
            return "OK";
        case Answer::Cancel:
            return "Cancel";
        case Answer::Yes:
            return "Yes";
        default:
            return "No";
    }
}

const char* Name(Buttons buttons) {
    switch (buttons) {
        case Buttons::Ok:
            return "OK";
        case Buttons::OkCancel:
            return "OKCancel";
        default:
            return "YesNo";
    }
}

const char* Name(Icon icon) {
    static constexpr const char* names[] = {"None", "Information", "Question", "Warning", "Error"};
    return names[static_cast<std::size_t>(icon)];
}

const char* Name(WindowStyle style) {
    static constexpr const char* names[] = {"Hidden",    "Normal",        "Minimized",
                                            "Maximized", "NormalNoFocus", "MinimizedNoFocus"};
    return names[static_cast<std::size_t>(style)];
}

Answer AnswerFrom(const Json& value) {
    const std::string& text = TextFrom(value, "an answer");
    for (const Answer answer : {Answer::Ok, Answer::Cancel, Answer::Yes, Answer::No}) {
        if (SameName(text, Name(answer))) return answer;
    }
    throw CommandError("an answer is OK, Cancel, Yes or No");
}

Json QueueAnswers(Session& session, const Json& command) {
    std::vector<Answer> answers;
    for (std::size_t i = 1; i < command.size(); ++i)
        answers.push_back(AnswerFrom(command[i]));
    auto& queue = session.Host().dialogs.answers;
    queue.insert(queue.end(), answers.begin(), answers.end());
    return Json::object();
}

Json QueueInputs(Session& session, const Json& command) {
    std::vector<std::string> inputs;
    for (std::size_t i = 1; i < command.size(); ++i)
        inputs.push_back(TextFrom(command[i], "an input"));
    auto& queue = session.Host().dialogs.inputs;
    queue.insert(queue.end(), inputs.begin(), inputs.end());
    return Json::object();
}

Json Boxes(Session& session, const Json&) {
    Json boxes = Json::array();
    for (const testing::ShownBox& shown : session.Host().dialogs.shown) {
        Json box = Json::object();
        box["title"] = shown.title;
        box["text"] = shown.text;
        box["buttons"] = Name(shown.buttons);
        box["icon"] = Name(shown.icon);
        box["answer"] = shown.isInput ? shown.input : Name(shown.answer);
        if (shown.isInput) box["initial"] = shown.initial;
        boxes.push_back(std::move(box));
    }
    session.Host().dialogs.shown.clear();
    return Told("boxes", std::move(boxes));
}

Json Runs(Session& session, const Json&) {
    Json runs = Json::array();
    for (const auto& start : session.Host().starter.runs) {
        Json run = Json::object();
        run["command"] = start.request.command;
        run["style"] = Name(start.request.style);
        run["directory"] = start.request.directory;
        run["wait"] = start.request.wait;
        run["words"] = start.request.words;
        run["startFile"] = start.request.startFile;
        run["watched"] = start.request.watched;
        run["opened"] = start.opened;
        run["edited"] = start.edited;
        if (start.script) run["script"] = *start.script;
        runs.push_back(std::move(run));
    }
    session.Host().starter.runs.clear();
    return Told("runs", std::move(runs));
}

Json Beeps(Session& session, const Json&) {
    return Told("beeps", std::exchange(session.Host().beeper.count, 0));
}

Json Kills(Session& session, const Json&) {
    Json ids = Json::array(), names = Json::array();
    for (const auto& kill : session.Host().processes.kills) {
        ids.push_back(kill.id);
        names.push_back(kill.name);
    }
    session.Host().processes.kills.clear();
    Json more = Told("kills", std::move(ids));
    more["names"] = std::move(names);
    return more;
}

Json Log(Session& session, const Json&) {
    return Told("log", std::exchange(session.Host().log.lines, {}));
}

int ProcessId(const Json& value) {
    const int id = WholeFrom(value, "the id");
    if (id <= 0) throw CommandError("the id must be above 0");
    return id;
}

Json Process(Session& session, const Json& command) {
    const std::string& action = TextFrom(command[1], "the action");
    auto& processes = session.Host().processes;
    if (action == "add" && command.size() == 4) {
        const std::string& name = TextFrom(command[2], "the name");
        const int id = ProcessId(command[3]);
        if (!processes.Add(name, id))
            throw CommandError("there is a process " + std::to_string(id) + " already");
    } else if (action == "remove" && command.size() == 3) {
        const int id = ProcessId(command[2]);
        if (!processes.Remove(id)) throw CommandError("no process " + std::to_string(id));
    } else {
        throw CommandError("process takes \"add\", name, id or \"remove\", id");
    }
    return Json::object();
}

Json Time(Session& session, const Json& command) {
    const auto time = TimeFromText(TextFrom(command[1], "the time"));
    if (!time) throw CommandError("the time must be such as \"14:05:09\"");
    session.Host().clock.Set(*time);
    return Json::object();
}

// What is not told stays as it is.
void SetDisplay(testing::ScriptedDisplay& screen, const Json& told) {
    if (!told.is_object()) throw CommandError("display set takes an object");
    platform::DisplayMode mode = screen.current.value_or(platform::DisplayMode{});
    bool accepts = screen.accepts;
    for (const auto& [name, value] : told.items()) {
        if (name == "width") {
            mode.width = WholeFrom(value, name);
        } else if (name == "height") {
            mode.height = WholeFrom(value, name);
        } else if (name == "bits") {
            mode.bits = WholeFrom(value, name);
        } else if (name == "frequency") {
            mode.frequency = WholeFrom(value, name);
        } else if (name == "accepts") {
            accepts = FlagFrom(value, name);
        } else {
            throw CommandError("a display has no " + name);
        }
    }
    screen.current = mode;
    screen.accepts = accepts;
}

Json Display(Session& session, const Json& command) {
    testing::ScriptedDisplay& screen = session.Host().display;
    if (command.size() > 1) {
        if (command.size() != 3 || TextFrom(command[1], "the action") != "set")
            throw CommandError("display takes nothing or \"set\" and an object");
        SetDisplay(screen, command[2]);
        return Json::object();
    }
    Json display = ModeJson(screen.current.value_or(platform::DisplayMode{}));
    display["changes"] = Json::array();
    for (const auto& change : screen.sent)
        display["changes"].push_back(ModeJson(change));
    return Told("display", std::move(display));
}

using Fetched = platform::Fetched;
constexpr std::array<std::pair<const char*, Fetched>, 8> endings{
    {{"ok", Fetched::ok},
     {"badAddress", Fetched::badAddress},
     {"unreachable", Fetched::unreachable},
     {"refused", Fetched::refused},
     {"incomplete", Fetched::incomplete},
     {"tooLarge", Fetched::tooLarge},
     {"cancelled", Fetched::cancelled},
     {"notWritable", Fetched::notWritable}}};

const char* Name(Fetched result) {
    for (const auto& [name, ending] : endings)
        if (ending == result) return name;
    return "";
}

Fetched FailureFrom(const Json& value) {
    const std::string& text = TextFrom(value, "the failure");
    for (const auto& [name, ending] : endings)
        if (ending != Fetched::ok && SameName(text, name)) return ending;
    throw CommandError("no download ends with " + text);
}

Json Download(Session& session, const Json& command) {
    const std::string& action = TextFrom(command[1], "the action");
    testing::ScriptedDownloads& downloads = session.Host().downloads;
    if (action == "serve" && command.size() == 4) {
        downloads.served[TextFrom(command[2], "the address")] = TextFrom(command[3], "the text");
    } else if (action == "fail" && command.size() <= 3) {
        downloads.served.clear();
        downloads.otherwise = command.size() > 2 ? FailureFrom(command[2]) : Fetched::unreachable;
    } else {
        throw CommandError("download takes \"serve\", address, text or \"fail\"");
    }
    return Json::object();
}

Json Downloads(Session& session, const Json&) {
    Json downloads = Json::array();
    for (const auto& request : session.Host().downloads.requests) {
        Json shown = Json::object();
        shown["url"] = request.url;
        shown["path"] = request.path;
        shown["result"] = Name(request.result);
        downloads.push_back(std::move(shown));
    }
    session.Host().downloads.requests.clear();
    return Told("downloads", std::move(downloads));
}

Json Waits(Session& session, const Json& command) {
    const int looks = WholeFrom(command[1], "the number");
    if (looks < 1) throw CommandError("the number must be 1 or more");
    session.Host().starter.looksWhileWaiting = looks;
    return Json::object();
}

// A later instance calls, as the program's main joins it.
Json Signal(Session& session, const Json&) {
    session.Program().EndFromOutside();
    return Json::object();
}

Json SessionEnds(Session& session, const Json&) {
    session.Program().SessionEnds();
    return Json::object();
}

Json Summon(Session& session, const Json& command) {
    const std::string file = command.size() > 1 ? TextFrom(command[1], "the file") : "";
    if (!file.empty()) session.Program().StartHandedFile(file);
    return Json::object();
}

}  // namespace

Json ModeJson(const platform::DisplayMode& mode) {
    Json shown = Json::object();
    shown["width"] = mode.width;
    shown["height"] = mode.height;
    shown["bits"] = mode.bits;
    shown["frequency"] = mode.frequency;
    return shown;
}

Json Told(const char* name, Json what) {
    Json more = Value(what);
    more[name] = std::move(what);
    return more;
}

const std::vector<Command>& HostCommands() {
    static const std::vector<Command> commands{
        {"answer", 1, anyNumber, false, QueueAnswers},
        {"input", 1, anyNumber, false, QueueInputs},
        {"boxes", 0, 0, false, Boxes},
        {"runs", 0, 0, false, Runs},
        {"waits", 1, 1, false, Waits},
        {"beeps", 0, 0, false, Beeps},
        {"kills", 0, 0, false, Kills},
        {"log", 0, 0, false, Log},
        {"process", 2, 3, false, Process},
        {"time", 1, 1, false, Time},
        {"display", 0, 2, false, Display},
        {"download", 1, 3, false, Download},
        {"downloads", 0, 0, false, Downloads},
        {"summon", 0, 1, true, Summon},
        {"signal", 0, 0, true, Signal},
        {"session", 0, 0, true, SessionEnds},
    };
    return commands;
}

}  // namespace kivu::driver
