// The buttons of the strip and what they do.
#include "controls/help_topic.h"
#include "controls/icons.h"
#include "controls/unload_queue.h"
#include "toolbar/main_form.h"
#include "toolbar/message_strip.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

wbButton* Picture_Button(QWidget* parent, IconName icon, const QString& tip) {
    auto* button = new wbButton(parent);
    button->Set_Caption({});
    button->Set_Picture(Load_Icon(icon), Icon_Size(icon));
    button->Set_CenterImage(true);
    button->Set_ToolTipTextLabel(tip);
    return button;
}

// Picture2; its border is Shape3.
wbButton* Collapsed_Face(QWidget* parent) {
    auto* face = new wbButton(parent);
    face->Set_Caption({});
    face->Set_BackColor(palette::Collapsed_Back);
    face->Set_HLcolor(palette::Collapsed_Pressed);
    face->Set_ForeColor(palette::Collapsed_Text);
    face->Set_bordercolor(palette::Outline);
    face->Set_ToolTipTextLabel(u"Click here to show the toolbar"_s);
    face->hide();
    return face;
}

// A cross: two slanted strokes, each two pixels wide.
void Draw_CloseFace(wbButton& button) {
    for (const int x : {4, 5}) {
        button.DRAWLine(x, 4, x + 6, 10);
        button.DRAWLine(x + 6, 4, x, 10);
    }
}

} // namespace

// In the order in which Tab goes through them.
void MainForm::Build_Buttons() {
    wbButton2 = new wbButton(this);
    wbButton2->Set_Caption(u"My Links"_s);
    wbButton3 = Picture_Button(this, IconName::AddReminder, u"Add new reminder"_s);
    wbButton5 = Picture_Button(this, IconName::ViewReminders, u"View reminders"_s);
    wbButton6 = Picture_Button(this, IconName::ViewNotes, u"View notes"_s);
    wbButton4 = Picture_Button(this, IconName::OpenTextbox, u"Open Textbox"_s);

    const QString hint =
        u"Click and hold down the mouse button to move the toolbar\n"_s + help_page::Hint;
    Picture1 = new MessageSurface(this);
    Picture1->setToolTip(hint);
    Picture1->installEventFilter(this);
    Label1 = new MessageText(Picture1);
    Label1->Set_Text(QString(63, u' '));
    Label1->setToolTip(hint);
    Label1->setGeometry(0, 0, 120, SmallLineHeight);
    Label1->installEventFilter(this);

    wbButton1 = new wbButton(this);
    wbButton1->Set_Caption({});
    wbButton1->Set_ToolTipTextLabel(u"Minimize/Hide/Close (Right-click for more options)"_s);
    wbButton1->Set_AllowRightClick(true);
    Draw_CloseFace(*wbButton1);

    Picture2 = Collapsed_Face(this);
    connect(Picture2, &wbButton::Click, this, [this] { AutoHide_ShowProc(false); });

    const std::pair<wbButton*, ToolbarCommand> clicks[] = {
        {wbButton2, ToolbarCommand::Open_LinksMenu}, {wbButton3, ToolbarCommand::Add_Reminder},
        {wbButton5, ToolbarCommand::View_Reminders}, {wbButton6, ToolbarCommand::View_Notes},
        {wbButton4, ToolbarCommand::Toggle_Textbox},
    };
    for (const auto& [button, command] : clicks) {
        connect(button, &wbButton::Click, this, [this, run = command] { commands.Run(run); });
    }
    // A press on a button is one on the strip.
    for (const wbButton* button :
         {wbButton1, wbButton2, wbButton3, wbButton4, wbButton5, wbButton6}) {
        connect(button, &wbButton::MouseDown, this, [] { Unload_PendingForms(); });
    }
    for (const wbButton* button : {wbButton1, wbButton2, wbButton4}) {
        connect(button, &wbButton::MouseMove, this, &MainForm::MouseOver);
    }
    connect(wbButton1, &wbButton::MouseUp, this, [this](MouseButton button, std::int16_t shift) {
        LastCloseButton = button;
        LastCloseShift = shift;
    });
    connect(wbButton1, &wbButton::KeyDown, this, [this](int, std::int16_t shift) {
        LastCloseButton = MouseButton::Left;
        LastCloseShift = shift;
    });
    connect(wbButton1, &wbButton::Click, this, &MainForm::wbButton1_Click);
}

void MainForm::Enable_Buttons() {
    wbButton2->setEnabled(commands.Has(ToolbarCommand::Open_LinksMenu));
    wbButton3->setEnabled(commands.Has(ToolbarCommand::Add_Reminder));
    wbButton5->setEnabled(commands.Has(ToolbarCommand::View_Reminders));
    wbButton6->setEnabled(commands.Has(ToolbarCommand::View_Notes));
    wbButton4->setEnabled(commands.Has(ToolbarCommand::Toggle_Textbox));
}

void MainForm::wbButton1_Click() {
    // A click that comes without a key or a mouse button is a plain one.
    const MouseButton button = std::exchange(LastCloseButton, MouseButton::Left);
    const auto shift = std::exchange(LastCloseShift, std::int16_t{NoShiftKey});
    const CloseAction action = Choose_CloseAction(button, shift);
    if (action != CloseAction::Open_Menu) {
        Do_CloseAction(action);
        return;
    }
    const auto cursor = platform::Desktop::Get().Cursor_Position();
    Open_CloseMenu(cursor ? QPoint(cursor->x, cursor->y)
                          : wbButton1->mapToGlobal(QPoint(0, wbButton1->height())));
}

void MainForm::Open_CloseMenu(const QPoint& where) {
    container.Popup_HideOptions(where);
    Do_CloseAction(CloseAction_OfAnswer(Global_HideOptionAnswer));
}

void MainForm::Do_CloseAction(CloseAction action) {
    switch (action) {
    case CloseAction::Minimize:
        Minimize_Strip();
        Show_HideDisabledMessage();
        break;
    case CloseAction::Hide:
        Hide_Strip();
        Show_HideDisabledMessage();
        break;
    case CloseAction::Unload:
        commands.Run(ToolbarCommand::Unload);
        break;
    case CloseAction::Open_Menu:
    case CloseAction::Nothing:
        break;
    }
}
