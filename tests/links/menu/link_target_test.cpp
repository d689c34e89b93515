#include "links/menu/link_target.h"
#include "support/fake_system.h"

using namespace Qt::StringLiterals;
using platform::ShowState;

namespace {

class LinkTarget : public testing::Test {
protected:
    LinkTarget() {
        const auto note = [this](const char* name) {
            return [this, name] { done.append(QLatin1StringView(name)); };
        };
        Global_LinkCommands = {note("reminders"), note("links"),  note("setup"),
                               note("notes"),     note("wizard"), note("help")};
    }

    FakeSystem system;
    QStringList done;
};

TEST_F(LinkTarget, A_command_in_any_case_is_done_by_the_program) {
    const std::pair<QString, QString> commands[] = {
        {u"config:Reminder_Edit"_s, u"reminders"_s}, {u"CONFIG:LINKS_EDIT"_s, u"links"_s},
        {u"config:program_setup"_s, u"setup"_s},     {u"Config:Notes_Editor"_s, u"notes"_s},
        {u"config:setup_WIZARD"_s, u"wizard"_s},     {u"Help:Contents"_s, u"help"_s}};
    for (const auto& [text, command] : commands) {
        done.clear();
        Open_Link(text, 0);
        EXPECT_EQ(done, QStringList(command));
    }
    system.dialogs.Expect_Message(u"Tockly\nVersion 1.1"_s, platform::BoxStyle::Information,
                                  u"About..."_s);
    Open_Link(u"HELP:ABOUT"_s, 0);
    Open_Link(QString(), 0);
    EXPECT_TRUE(system.shell.calls.empty());
}

TEST_F(LinkTarget, Everything_else_goes_to_the_desktop_as_it_stands) {
    using Call = RecordingShell::Call;
    system.shell.succeeds = false; // and nobody is told
    const std::tuple<QString, int, Call> cases[] = {
        {u"http://example.org/?q=$(a) b"_s,
         0,
         {u"http://example.org/?q=$(a) b"_s, {}, ShowState::Normal, true}},
        {u"-x \"K\u00E4se\"'"_s, 1, {u"-x \"K\u00E4se\"'"_s, {}, ShowState::Minimized, true}},
        {u"/opt/my tool/RUN.EXE"_s,
         2,
         {u"/opt/my tool/RUN.EXE"_s, {}, ShowState::Maximized, false}},
        {u"c:\\notepad.exe"_s, 1, {u"c:\\notepad.exe"_s, {}, ShowState::Minimized, false}},
        {u"tool.exe -a"_s, 200, {u"tool.exe -a"_s, {}, ShowState::Normal, true}},
        {u"config:unknown"_s, 0, {u"config:unknown"_s, {}, ShowState::Normal, true}}};
    for (const auto& [text, startSize, call] : cases) {
        Open_Link(text, static_cast<std::uint8_t>(startSize));
        EXPECT_EQ(system.shell.calls.back(), call) << text.toStdString();
    }
    EXPECT_EQ(system.shell.calls.size(), std::size(cases));
    EXPECT_TRUE(done.isEmpty());
}

} // namespace
