#pragma once

#include "platform/host.h"
#include "support/logged_controllers.h"
#include "support/logged_files.h"
#include "support/logged_services.h"

namespace kivu::wiring {

// A host whose files, programs, processes, instances and controllers say in its log what fails or
// comes and goes, so that no routine has to. The parts of the same names hide those of the host
// itself.
struct LoggedHost : platform::Host {
    explicit LoggedHost(platform::Host host)
        : Host(std::move(host)),
          files(Host::files, log),
          processes(Host::processes, log),
          starter(Host::starter, log),
          instance(Host::instance, log),
          controllers(Host::controllers, log) {}

    platform::Host Services() {
        return platform::ServicesOf(*this, programDirectory, programName, commandLine);
    }

    support::LoggedFiles files;
    support::LoggedProcesses processes;
    support::LoggedStarter starter;
    support::LoggedInstance instance;
    support::LoggedControllers controllers;
};

}  // namespace kivu::wiring
