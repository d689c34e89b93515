#include "accessories/clock/frm_clock.h"

#include "accessories/clock/clock_face.h"
#include "controls/icons.h"
#include "controls/painting.h"
#include "controls/program_end.h"
#include "controls/the_screen.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "platform/window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int BoxSize = 25;
constexpr int BoxTop = FaceHeight + 3;
constexpr int HoursLeft = 8;
constexpr int MinutesLeft = 63;
constexpr int ButtonWidth = 20;
constexpr int ButtonHeight = 13; // the two of a pair share a border
constexpr QSize ArrowSize(9, 9);
constexpr QSize ClockSize(FaceWidth + 2, BoxTop + BoxSize + 6);
constexpr int StartTime = 16 * 60 + 16;

constexpr std::array<const char*, StepButtonCount> ButtonNames = {"Hour up", "Hour down",
                                                                  "Minute up", "Minute down"};

bool Is_Up(StepButton button) {
    return button == StepButton::HourUp || button == StepButton::MinuteUp;
}

} // namespace

frmClock::frmClock(QWidget* owner) : Form(owner, Qt::Window | Qt::FramelessWindowHint) {
    setWindowTitle(u"Tockly Clock"_s);
    setAttribute(Qt::WA_ShowWithoutActivating);
    Set_BackColor(palette::White);
    setFixedSize(ClockSize);
    ClockPIC = new ClockPicture(this);
    ClockPIC->move(1, 1);
    Text1 = Make_Box(HoursLeft, u"Hours"_s);
    Text2 = Make_Box(MinutesLeft, u"Minutes"_s);
    Make_Buttons();
    Add_Label(u":"_s, MinutesLeft - 6, BoxTop + 5);
    connect(&AutoAddTimer, &QTimer::timeout, this, &frmClock::AutoAddTimer_Tick);
    SetTime(StartTime);
}

QLineEdit* frmClock::Make_Box(int left, const QString& name) {
    auto* box = new QLineEdit(this);
    box->setGeometry(left, BoxTop, BoxSize, BoxSize);
    box->setMaxLength(2);
    box->setAlignment(Qt::AlignCenter);
    QPalette colors = box->palette();
    colors.setColor(QPalette::Base, palette::To_Color(palette::Clock_Box_Back));
    box->setPalette(colors);
    box->setAccessibleName(name);
    box->installEventFilter(this);
    connect(box, &QLineEdit::textChanged, this, [this, box] { Box_Change(box); });
    connect(box, &QLineEdit::editingFinished, this, [this, box] { Box_Left(box); });
    return box;
}

void frmClock::Make_Buttons() {
    for (int i = 0; i < StepButtonCount; ++i) {
        const auto step = static_cast<StepButton>(i);
        const bool forHours = step == StepButton::HourUp || step == StepButton::HourDown;
        auto* button = new wbButton(this);
        button->setGeometry((forHours ? HoursLeft : MinutesLeft) + BoxSize + 2,
                            Is_Up(step) ? BoxTop : BoxTop + BoxSize - ButtonHeight, ButtonWidth,
                            ButtonHeight);
        button->Set_Caption({});
        button->Set_Picture(Load_Icon(Is_Up(step) ? IconName::MoveUp : IconName::MoveDown),
                            ArrowSize);
        button->Set_CenterImage(true);
        button->Set_ToolTipTextLabel(QString::fromLatin1(ButtonNames[static_cast<std::size_t>(i)]));
        connect(button, &wbButton::Click, this, [this, step] {
            if (!hasRepeated)
                wbButton1_Click(step);
        });
        connect(button, &wbButton::MouseDown, this, [this, step](MouseButton pressed) {
            if (pressed == MouseButton::Left)
                Press_Step(step);
        });
        connect(button, &wbButton::MouseUp, this, &frmClock::Release_Step);
        wbButton1[static_cast<std::size_t>(i)] = button;
    }
    setTabOrder(Text1, wbButton1[0]);
    setTabOrder(wbButton1[0], wbButton1[1]);
    setTabOrder(wbButton1[1], Text2);
    setTabOrder(Text2, wbButton1[2]);
    setTabOrder(wbButton1[2], wbButton1[3]);
}

void frmClock::Set_wTextBox(QLineEdit* box) {
    if (target)
        target->disconnect(this);
    target = box;
    if (target)
        connect(target, &QLineEdit::textChanged, this, &frmClock::wTextBox_Change);
}

void frmClock::SetTime(int LongMinutes) {
    time = To_ClockTime(LongMinutes);
    Fill_Boxes();
    DrawTime(MinutesValue());
}

void frmClock::DrawTime(int LongMinutes) {
    ClockPIC->DrawTime(LongMinutes);
}

void frmClock::Fill_Boxes() {
    SettingTime = true;
    Text1->setText(Two_Digits(time.Hour));
    Text2->setText(Two_Digits(time.Minute));
    SettingTime = false;
}

void frmClock::wTextBox_Change() {
    if (writingTarget || !target)
        return;
    if (const int minutes = ParseTime_Colon(target->text()); minutes >= 0)
        SetTime(minutes);
}

void frmClock::Box_Change(QLineEdit* box) {
    if (SettingTime)
        return;
    int& part = box == Text1 ? time.Hour : time.Minute;
    const auto value = Read_Box(box->text(), box == Text1 ? 23 : 59);
    // What is no number, such as a box emptied to be typed anew, changes no time yet.
    if (!value)
        return;
    part = *value;
    if (box->text().trimmed().toInt() != part) {
        SettingTime = true;
        box->setText(Two_Digits(part));
        SettingTime = false;
    }
    DrawTime(MinutesValue());
    Write_Target();
}

void frmClock::Box_Left(QLineEdit* box) {
    SettingTime = true;
    box->setText(Two_Digits(box == Text1 ? time.Hour : time.Minute));
    SettingTime = false;
}

QString frmClock::Box_Text(const QLineEdit* box, int value) const {
    return Read_Box(box->text(), value) == value ? box->text() : Two_Digits(value);
}

// Whoever hears of the change may put the clock away, or tell it of its own text.
void frmClock::Write_Target() {
    if (!target || writingTarget)
        return;
    const QPointer<frmClock> alive(this);
    writingTarget = true;
    target->setText(Box_Text(Text1, time.Hour) + u':' + Box_Text(Text2, time.Minute));
    if (alive)
        writingTarget = false;
}

void frmClock::wbButton1_Click(StepButton button) {
    const Stepped next = Step_Time(time, button);
    time = next.Time;
    MinuteWrapped = next.MinuteWrapped;
    Fill_Boxes();
    DrawTime(MinutesValue());
    Write_Target();
}

void frmClock::Press_Step(StepButton button) {
    heldButton = button;
    hasRepeated = false;
    AutoAddTimer.start(FirstRepeatInterval);
}

void frmClock::Release_Step() {
    AutoAddTimer.stop();
    // Once the click of this release is over.
    QTimer::singleShot(0, this, [this] { hasRepeated = false; });
}

void frmClock::AutoAddTimer_Tick() {
    if (Program_Is_Ending()) {
        AutoAddTimer.stop();
        return;
    }
    hasRepeated = true;
    AutoAddTimer.setInterval(Next_RepeatInterval(AutoAddTimer.interval()));
    wbButton1_Click(heldButton);
}

bool frmClock::Step_ByKey(const QLineEdit* box, int key) {
    if (key == Qt::Key_Up)
        wbButton1_Click(box == Text1 ? StepButton::HourUp : StepButton::MinuteUp);
    else if (key == Qt::Key_Down)
        wbButton1_Click(box == Text1 ? StepButton::HourDown : StepButton::MinuteDown);
    else
        return false;
    return true;
}

bool frmClock::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((watched == Text1 || watched == Text2) &&
            Step_ByKey(static_cast<QLineEdit*>(watched), key))
            return true;
    }
    return Form::eventFilter(watched, event);
}

void frmClock::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Hide_Clock();
    else
        Form::keyPressEvent(event);
}

// The one clock is kept for the next field.
void frmClock::closeEvent(QCloseEvent* event) {
    event->ignore();
    Hide_Clock();
}

void frmClock::Hide_Clock() {
    const bool hadFocus = isActiveWindow();
    hide();
    if (!hadFocus || !target || !target->isVisible())
        return;
    platform::Windows::Get().Activate(target->window()->winId());
    target->setFocus();
}

void frmClock::hideEvent(QHideEvent* event) {
    AutoAddTimer.stop();
    hasRepeated = false;
    Form::hideEvent(event);
}

void frmClock::On_Unload() {
    Set_wTextBox(nullptr);
}

void frmClock::Show_At(int left, int top) {
    const QRect screen = Screen_At(target ? target->mapToGlobal(QPoint()) : QPoint(left, top));
    move(Moved_Into(screen, {QPoint(left, top), size()}).topLeft());
    // Asked for the id of a window that is not made yet, the toolkit makes all children of the
    // owner native windows.
    create();
    platform::Windows& windows = platform::Windows::Get();
    windows.Leave_TaskBar(winId());
    windows.Keep_Place(winId());
    show();
    raise();
    windows.Set_Topmost(winId(), true);
}

// Above the others also when another window has taken the top since.
void frmClock::paintEvent(QPaintEvent*) {
    platform::Windows::Get().Set_Topmost(winId(), true);
    platform::Windows::Get().Raise(winId(), platform::RaiseOver::Others);
    QPainter painter(this);
    Draw_Frame(painter, rect(), palette::To_Color(palette::Outline));
}
