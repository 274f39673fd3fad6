#pragma once

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace vistrel {

// What every vistrel-sim command gets: where to print and where to write its pictures.
struct SimCommandContext {
    std::ostream& out;
    std::filesystem::path outputDirectory;
    // What followed the command's name on the command line.
    std::vector<std::string> arguments = {};
};

// One thing vistrel-sim can do: print the default scene, play a scripted session, render
// a picture. Commands register themselves from their own files; `vistrel-sim` with no
// arguments runs every command in `order`, `vistrel-sim NAME` runs one.
struct SimCommand {
    std::string name;
    std::string summary;
    int order = 0;
    std::function<int(SimCommandContext&)> run;
};

// Adds a command; used through VISTREL_SIM_COMMAND at namespace scope.
bool registerSimCommand(SimCommand command);
const std::vector<SimCommand>& simCommands();

}  // namespace vistrel

#define VISTREL_SIM_COMMAND_CONCAT_(a, b) a##b
#define VISTREL_SIM_COMMAND_NAME_(line) VISTREL_SIM_COMMAND_CONCAT_(simCommandRegistered, line)
// Registers a command when the program starts.
#define VISTREL_SIM_COMMAND(...)                                             \
    [[maybe_unused]] static const bool VISTREL_SIM_COMMAND_NAME_(__LINE__) = \
        ::vistrel::registerSimCommand(::vistrel::SimCommand{__VA_ARGS__})
