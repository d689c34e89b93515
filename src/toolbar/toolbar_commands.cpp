#include "toolbar/toolbar_commands.h"

#include <utility>

void ToolbarCommands::Connect(ToolbarCommand command, std::function<void()> work) {
    works[static_cast<std::size_t>(command)] = std::move(work);
    if (changed) {
        changed();
    }
}

bool ToolbarCommands::Has(ToolbarCommand command) const {
    return static_cast<bool>(works[static_cast<std::size_t>(command)]);
}

void ToolbarCommands::Run(ToolbarCommand command) const {
    const auto work = works[static_cast<std::size_t>(command)];
    if (work) {
        work();
    }
}
