#include "walker/world.h"

#include <algorithm>

namespace kivu::walker {

World::World(const Collection& collection) : options(collection.options) {
    disk.AddDirectory(programDirectory);
    session = std::make_unique<driver::Session>(disk, options);
    interpreter = std::make_unique<driver::Interpreter>(*session);
    for (const Json& command : collection.layout)
        Execute(command);
    Watch();
}

Json World::Execute(const Json& command) {
    NoteDisk(command);
    return interpreter->Execute(command);
}

void World::NoteDisk(const Json& command) {
    if (command[0] != "disk") return;
    broken.reset();
    if (command[1] != "fine")
        broken = command.size() > 2 ? command[2].get<std::string>() : std::string();
}

// As a conversation by lines does.
void World::ServeWindow(const std::function<bool()>& isOpen) {
    while (isOpen() && !following.empty() && !Ended()) {
        const Json command = std::move(following.front());
        following.pop_front();
        inside.emplace_back(command, Execute(command));
    }
}

bool World::ModalIsOpen() {
    const auto open = session->Screen().OpenWindows();
    return std::any_of(open.begin(), open.end(), [](const auto& window) { return window.modal; });
}

Look World::Now() {
    Look look = TakeLook(Form());
    const testing::ScriptedControllers& controllers = Host().controllers;
    look.pad.on = look.pad.on && controllers.IsOpened(0);
    if (controllers.devices.empty()) return look;
    const auto& buttons = controllers.devices[0].state.buttons;
    const auto held = std::find(buttons.begin(), buttons.end(), true);
    if (held != buttons.end()) look.pad.button = static_cast<int>(held - buttons.begin());
    return look;
}

int World::TakeRefusals() {
    const int all = session->disk.Failures();
    return all - std::exchange(refusals, all);
}

void World::StartAnew() {
    broken.reset();
    refusals = 0;
    interpreter.reset();
    session = std::make_unique<driver::Session>(disk, options);
    interpreter = std::make_unique<driver::Interpreter>(*session);
    Watch();
    Execute(Json::array({"start"}));
}

void World::Watch() {
    session->Screen().onModal = [this](forms::Form&, const std::function<bool()>& isOpen) {
        ServeWindow(isOpen);
    };
    Host().starter.onRun = [this](const platform::StartRequest& request) { NoteStart(request); };
    Host().dialogs.onShow = [this] {
        boxes.push_back({Host().dialogs.shown.back(), TakeLook(Form())});
    };
    interpreter->onMeanwhile = [this](const Json& command) {
        NoteDisk(command);
        if (onMeanwhile) onMeanwhile(command);
    };
}

std::string World::Read(const std::string& path) const {
    return disk.ReadFile(std::string(programDirectory) + "/" + path).value_or("");
}

void World::NoteStart(const platform::StartRequest& request) {
    if (!request.watched) {
        HelperRun helper{request.command, request.wait, starts.size()};
        if (request.startFile) helper.text = disk.ReadFile(request.words.front()).value_or("");
        helpers.push_back(std::move(helper));
        return;
    }
    Started started;
    const std::string& first = request.words.empty() ? request.command : request.words.front();
    started.game = request.words.size() != 1 || request.startFile;
    if (request.startFile) {
        started.text = disk.ReadFile(first).value_or("");
        const std::string directory = first.substr(0, first.rfind('/'));
        started.emulator = directory.substr(directory.rfind('/') + 1);
        // What a batch emulator's own start file hands on.
        started.text += disk.ReadFile(directory + "/Kivu_tmp_wine.bat").value_or("");
    } else {
        for (const std::string& word : request.words)
            started.text += word + "\n";
    }
    if (!request.startFile) started.program = first;
    std::replace(started.text.begin(), started.text.end(), '\\', '/');
    starts.push_back(std::move(started));
}

}  // namespace kivu::walker
