// The controls of the reminder window, and how it shows a reminder.
#include "controls/help_topic.h"
#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/text_fields.h"
#include "delivery/action_icons.h"
#include "delivery/important_rwin.h"
#include "delivery/rwin_layout.h"
#include "platform/shown_text.h"

#include <QFontMetrics>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The colours are the program's own, whatever the desktop's theme.
QPalette Window_Palette() {
    QPalette colors(palette::To_Color(palette::System_ButtonFace));
    colors.setColor(QPalette::Base, palette::To_Color(palette::ReminderWindow_Text_Back));
    colors.setColor(QPalette::Text, palette::To_Color(palette::Black));
    colors.setColor(QPalette::Window, palette::To_Color(palette::ReminderWindow_Back));
    return colors;
}

// What a person is told of a button without a caption.
QString Spoken_Name(const FunctionEntry& entry) {
    return entry.Title.trimmed().isEmpty() ? u"Open "_s + entry.Function_Path : entry.Title;
}

// The margins stand beside the text alone: above and below it every pixel counts as a line.
class TextBox : public MemoField {
public:
    explicit TextBox(QWidget* parent) : MemoField(parent) {
        document()->setDocumentMargin(0);
        setViewportMargins(rwin::TextMargin, 0, rwin::TextMargin, 0);
        setBackgroundRole(QPalette::Base);
        setAutoFillBackground(true);
    }
};

QPlainTextEdit* Make_TextBox(QWidget* parent) {
    auto* box = new TextBox(parent);
    box->setGeometry(rwin::TextBox);
    box->setFont(Small_Font());
    box->setFrameShape(QFrame::NoFrame);
    box->setReadOnly(true);
    box->setUndoRedoEnabled(false);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setTabChangesFocus(true);
    box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->setAccessibleName(u"Message"_s);
    return box;
}

} // namespace

frmImportantRWin::frmImportantRWin(RWinTable& owner, std::size_t slot)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), table(owner), slotOnView(slot) {
    setWindowTitle(u"Reminder"_s);
    setAccessibleName(u"Reminder"_s);
    Set_HelpTopic(*this, help_page::Toolbar);
    setAttribute(Qt::WA_OpaquePaintEvent);
    // The user may be typing somewhere else.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMinimumSize(1, 1);
    setPalette(Window_Palette());
    Build_Controls();
}

// Made in the order in which Tab goes through them.
void frmImportantRWin::Build_Controls() {
    Text1 = Make_TextBox(this);
    for (std::size_t index = 0; index < wbButton1.size(); ++index) {
        wbButton1[index] = new wbButton(this);
        wbButton1[index]->hide();
        connect(wbButton1[index], &wbButton::Click, this,
                [this, index] { wbButton1_Click(static_cast<int>(index)); });
    }
    wbButton2 = new wbButton(this);
    wbButton2->Set_Caption(u"Options"_s);
    connect(wbButton2, &wbButton::Click, this, &frmImportantRWin::wbButton2_Click);
    wbButton3 = new wbButton(this);
    connect(wbButton3, &wbButton::Click, this, &frmImportantRWin::wbButton3_Click);
    Mark_Pending();
    Lay_Out(0);
    wbButton3->setFocus();
}

void frmImportantRWin::UpdateWindow(const ReminderRef& reminder) {
    reminderOnView = reminder;
    Show_Text(reminder.Peek()->rs_Text);
    Lay_Out(Show_Actions(*reminder.Peek()));
}

void frmImportantRWin::Show_Text(const QString& text) {
    Text1->setVerticalScrollBarPolicy(rwin::Needs_ScrollBar(text, Text1->font())
                                          ? Qt::ScrollBarAlwaysOn
                                          : Qt::ScrollBarAlwaysOff);
    Text1->setWordWrapMode(rwin::Wrap_Mode(text));
    Text1->setPlainText(text);
    Text1->verticalScrollBar()->setValue(0);
    setAccessibleDescription(text);
}

int frmImportantRWin::Show_Actions(const ReminderClass& reminder) {
    int actions = 0;
    std::vector<int> captionWidths;
    for (int index = 0; index < ReminderClass::FunctionCount; ++index) {
        const FunctionEntry& entry = reminder.GetFuncion(index);
        if (!entry.Enabled)
            continue;
        captionWidths.push_back(wbButton2->fontMetrics().horizontalAdvance(entry.Title));
        const auto row = static_cast<std::size_t>(actions++);
        ActionKind[row] = entry.Function_Type;
        ActionTarget[row] = entry.Function_Path;
        ActionWindowState[row] = entry.Window_Mode;
    }
    const int width = rwin::Action_Width(captionWidths);
    int row = 0;
    for (int index = 0; index < ReminderClass::FunctionCount; ++index) {
        const FunctionEntry& entry = reminder.GetFuncion(index);
        if (!entry.Enabled)
            continue;
        wbButton1[static_cast<std::size_t>(row)]->setGeometry(
            rwin::TextBox.left(), rwin::Row_Top(row), width, rwin::ButtonHeight);
        Show_Action(row++, entry);
    }
    return actions;
}

void frmImportantRWin::Show_Action(int row, const FunctionEntry& entry) {
    const auto index = static_cast<std::size_t>(row);
    wbButton* button = wbButton1[index];
    const QIcon picture = Action_Icon(ActionKind[index]);
    button->Set_Picture(picture, picture.isNull() ? QSize() : ActionIconSize);
    button->Set_ImageLEFT(3);
    button->Set_ImageTOP((rwin::ButtonHeight - ActionIconSize.height()) / 2);
    const int room =
        button->width() - 2 * (picture.isNull() ? rwin::TextBox.left() : rwin::PictureRoom);
    const QString caption = entry.Title.simplified();
    const QString shown = button->fontMetrics().elidedText(caption, Qt::ElideRight, room);
    button->Set_Caption(shown);
    button->Set_ToolTipTextLabel(
        platform::Tip_Text(shown == caption ? entry.Function_Path : caption));
    button->setAccessibleName(Spoken_Name(entry));
    button->setAccessibleDescription(entry.Function_Path);
}

void frmImportantRWin::Lay_Out(int actions) {
    for (int row = 0; row < ReminderClass::FunctionCount; ++row)
        wbButton1[static_cast<std::size_t>(row)]->setVisible(row < actions);
    const int rows = rwin::Rows_For(actions);
    const int top = rwin::Row_Top(rows - 1);
    wbButton2->setGeometry(rwin::OptionsLeft, top, rwin::OptionsWidth, rwin::ButtonHeight);
    wbButton3->setGeometry(rwin::CloseLeft, top, rwin::CloseWidth, rwin::ButtonHeight);
    shapeHeight = rwin::Shape_Height(rows);
    setFixedSize(rwin::Width, shapeHeight);
    update();
}

void frmImportantRWin::Mark_Pending() {
    const QString caption = PendingList.empty() ? u" X"_s : u" >"_s;
    if (wbButton3->Caption() == caption)
        return;
    const QString meaning = PendingList.empty() ? u"Close"_s : u"Next reminder"_s;
    wbButton3->Set_Caption(caption);
    wbButton3->Set_ToolTipTextLabel(meaning);
    wbButton3->setAccessibleName(meaning);
}

void frmImportantRWin::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette::To_Color(palette::ReminderWindow_Back));
    const QRect shape(0, 0, rwin::Width, shapeHeight);
    painter.fillRect(shape, palette::To_Color(palette::ReminderWindow_Outline_Back));
    Draw_Frame(painter, shape, palette::To_Color(palette::Outline));
    if (std::exchange(comesUp, false))
        QTimer::singleShot(0, this, &frmImportantRWin::Come_Up);
}
