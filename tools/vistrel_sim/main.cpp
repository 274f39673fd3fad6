#include <algorithm>
#include <iostream>
#include <string_view>

#include "sim_command.h"

namespace vistrel {

namespace {

std::vector<SimCommand>& registry() {
    static std::vector<SimCommand> commands;
    return commands;
}

void printUsage(std::ostream& out) {
    out << "usage: vistrel-sim [COMMAND [ARGUMENTS]]\n\nWith no command, runs them all in "
           "turn.\n\n";
    for (const SimCommand& command : simCommands()) {
        out << "  " << command.name << "  " << command.summary << "\n";
    }
}

}  // namespace

bool registerSimCommand(SimCommand command) {
    auto& commands = registry();
    commands.push_back(std::move(command));
    std::stable_sort(commands.begin(), commands.end(),
                     [](const SimCommand& a, const SimCommand& b) { return a.order < b.order; });
    return true;
}

const std::vector<SimCommand>& simCommands() {
    return registry();
}

}  // namespace vistrel

int main(int argc, char** argv) {
    using namespace vistrel;
    SimCommandContext context{std::cout, "out"};
    if (argc > 1) {
        const std::string_view wanted = argv[1];
        if (wanted == "help" || wanted == "--help") {
            printUsage(context.out);
            return 0;
        }
        context.arguments.assign(argv + 2, argv + argc);
        for (const SimCommand& command : simCommands()) {
            if (command.name == wanted) return command.run(context);
        }
        printUsage(std::cerr);
        return 2;
    }
    for (const SimCommand& command : simCommands()) {
        if (const int status = command.run(context); status != 0) return status;
    }
    return 0;
}
