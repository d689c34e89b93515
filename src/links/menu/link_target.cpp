#include "links/menu/link_target.h"

#include "platform/dialogs.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

LinkCommands connectedCommands;

struct CommandRow {
    QLatin1StringView Text;
    LinkAction Action;
};

constexpr std::array<CommandRow, 7> CommandTable = {{
    {"config:reminder_edit"_L1, LinkAction::Reminder_Edit},
    {"config:links_edit"_L1, LinkAction::Links_Edit},
    {"config:program_setup"_L1, LinkAction::Program_Setup},
    {"config:notes_editor"_L1, LinkAction::Notes_Editor},
    {"config:setup_wizard"_L1, LinkAction::Setup_Wizard},
    {"help:contents"_L1, LinkAction::Help_Contents},
    {"help:about"_L1, LinkAction::About},
}};

void Run(const std::function<void()>& command) {
    if (command)
        command();
}

void Show_Help() {
    const auto help = connectedCommands.Help;
    if (help)
        help(u"contents.html"_s);
}

void Show_About() {
    platform::Dialogs::Get().Show_Message(u"Tockly\nVersion 1.1"_s,
                                          {u"About..."_s, platform::BoxStyle::Information});
}

} // namespace

void Connect_LinkCommands(LinkCommands commands) {
    connectedCommands = std::move(commands);
}

LinkAction Action_Of(const QString& url) {
    if (url.isEmpty())
        return LinkAction::Nothing;
    for (const CommandRow& row : CommandTable) {
        if (url.compare(row.Text, Qt::CaseInsensitive) == 0)
            return row.Action;
    }
    return url.endsWith(".exe"_L1, Qt::CaseInsensitive) ? LinkAction::Start_Program
                                                        : LinkAction::Open_Target;
}

platform::ShowState Show_StateOf(std::uint8_t startSize) {
    switch (startSize) {
    case 1:
        return platform::ShowState::Minimized;
    case 2:
        return platform::ShowState::Maximized;
    default:
        return platform::ShowState::Normal;
    }
}

void Open_Link(const QString& url, std::uint8_t startSize) {
    // A command may connect others, or end the program.
    const LinkCommands commands = connectedCommands;
    switch (Action_Of(url)) {
    case LinkAction::Nothing:
        return;
    case LinkAction::Reminder_Edit:
        return Run(commands.Reminder_Edit);
    case LinkAction::Links_Edit:
        return Run(commands.Links_Edit);
    case LinkAction::Program_Setup:
        return Run(commands.Program_Setup);
    case LinkAction::Notes_Editor:
        return Run(commands.Notes_Editor);
    case LinkAction::Setup_Wizard:
        return Run(commands.Setup_Wizard);
    case LinkAction::Help_Contents:
        return Show_Help();
    case LinkAction::About:
        return Show_About();
    case LinkAction::Start_Program:
        platform::Shell::Get().Start(url, {}, Show_StateOf(startSize));
        return;
    case LinkAction::Open_Target:
        platform::Shell::Get().Open(url, Show_StateOf(startSize));
        return;
    }
}
