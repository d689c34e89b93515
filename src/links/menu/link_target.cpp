#include "links/menu/link_target.h"

#include "platform/dialogs.h"
#include "platform/shell.h"

using namespace Qt::StringLiterals;

namespace {

constexpr struct {
    QLatin1StringView Text;
    std::function<void()> LinkCommands::*Command;
} CommandTable[] = {
    {"config:reminder_edit"_L1, &LinkCommands::Reminder_Edit},
    {"config:links_edit"_L1, &LinkCommands::Links_Edit},
    {"config:program_setup"_L1, &LinkCommands::Program_Setup},
    {"config:notes_editor"_L1, &LinkCommands::Notes_Editor},
    {"config:setup_wizard"_L1, &LinkCommands::Setup_Wizard},
    {"help:contents"_L1, &LinkCommands::Help_Contents},
};

bool Is_Command(const QString& url, QLatin1StringView text) {
    return url.compare(text, Qt::CaseInsensitive) == 0;
}

} // namespace

LinkCommands Global_LinkCommands;

void Open_Link(const QString& url, std::uint8_t startSize) {
    for (const auto& row : CommandTable)
        if (Is_Command(url, row.Text))
            return (Global_LinkCommands.*row.Command)();
    if (Is_Command(url, "help:about"_L1))
        platform::Dialogs::Get().Show_Message(u"Tockly\nVersion 1.1"_s,
                                              {u"About..."_s, platform::BoxStyle::Information});
    else if (url.endsWith(".exe"_L1, Qt::CaseInsensitive))
        platform::Shell::Get().Start(url, {}, platform::Show_StateOf(startSize));
    else if (!url.isEmpty())
        platform::Shell::Get().Open(url, platform::Show_StateOf(startSize));
}
