#include "editors/pages/clock_popup.h"

#include "accessories/clock/frm_clock.h"
#include "editors/pages/page_controls.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int FocusInterval = 200; // ms
constexpr int ClockGap = 4;        // pixels

} // namespace

ClockPopup::ClockPopup(QWidget& around, std::function<void()> left)
    : QObject(&around), page(around), onLeft(std::move(left)) {
    frmClockFocusTimer.setObjectName(u"frmClockFocusTimer"_s);
    frmClockFocusTimer.setInterval(FocusInterval);
    connect(&frmClockFocusTimer, &QTimer::timeout, this, &ClockPopup::frmClockFocusTimer_Tick);
}

void ClockPopup::Watch(TimeField* field) {
    connect(field, &TimeField::Got_Focus, this, [this] {
        fieldHasFocus = true;
        frmClockFocusTimer.stop();
    });
    connect(field, &TimeField::Lost_Focus, this, [this] {
        fieldHasFocus = false;
        if (!target.isEmpty())
            frmClockFocusTimer.start();
    });
}

frmClock& ClockPopup::The_Clock() {
    if (!clock || clock->Is_Unloading()) {
        clock = new frmClock(page.window());
        connect(clock, &Form::Unloaded, this, &ClockPopup::Leave_Field);
    }
    return *clock;
}

bool ClockPopup::Is_On(const QString& name) const {
    return target == name && clock && clock->isVisible();
}

void ClockPopup::Show_Clock_For_Textbox(const QString& name, QLineEdit* box, int minutes,
                                        int fieldTop) {
    if (Is_On(name))
        return;
    page.window()->installEventFilter(this);
    frmClock& form = The_Clock();
    form.hide();
    target = name;
    form.Set_wTextBox(box);
    form.SetTime(minutes);
    form.Show_At(page.mapToGlobal(QPoint(page.width(), 0)).x() + ClockGap, fieldTop);
    // While the user types in the field the clock stays beside it.
    if (!fieldHasFocus)
        frmClockFocusTimer.start();
}

void ClockPopup::Follow(const QLineEdit* box) {
    if (clock && !clock->Is_Unloading() && clock->wTextBox() == box)
        clock->wTextBox_Change();
}

bool ClockPopup::eventFilter(QObject* watched, QEvent* event) {
    const bool isEscape = event->type() == QEvent::KeyPress &&
                          static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (!isEscape || watched != page.window() || !clock || !clock->isVisible())
        return QObject::eventFilter(watched, event);
    Hide();
    return true;
}

void ClockPopup::frmClockFocusTimer_Tick() {
    if (platform::Dialogs::Get().Holds_Timers())
        return;
    // A clock that the window manager does not call the foreground may have the focus as well.
    if (clock && clock->isActiveWindow())
        return;
    const QString title = platform::Desktop::Get().Foreground_Title();
    if (title != "Tockly Clock"_L1 && title != "Tockly Toolbar"_L1)
        Hide();
}

void ClockPopup::Leave_Field() {
    frmClockFocusTimer.stop();
    target.clear();
    onLeft();
}

void ClockPopup::Hide() {
    if (clock && !clock->Is_Unloading()) {
        clock->Set_wTextBox(nullptr);
        clock->hide();
    }
    Leave_Field();
}

void ClockPopup::Unload() {
    if (clock)
        clock->Unload();
    Leave_Field();
}
