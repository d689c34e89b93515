#include "controls/form.h"

#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/page_parts.h"
#include "controls/program_end.h"
#include "controls/the_screen.h"
#include "controls/unload_queue.h"
#include "platform/window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace {
constexpr int TitleBarRoom = 12; // half of what a window manager adds above
constexpr int ToolbarRoom = 24;  // the toolbar usually stands at the top
} // namespace

Form::Form(QWidget* owner, Qt::WindowFlags kind) : QWidget(owner, kind) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowIcon(Load_Icon(IconName::Program));
    setFont(Small_Font());
    setAutoFillBackground(true);
    Set_BackColor(palette::Form_Back);
}

QPalette Form_Palette(ColorValue back) {
    const QColor text = palette::To_Color(palette::Black);
    QPalette colors(palette::To_Color(palette::System_ButtonFace), palette::To_Color(back));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colors.setColor(role, text);
    colors.setColor(QPalette::Base, palette::To_Color(palette::White));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colors.setColor(QPalette::Disabled, role, palette::To_Color(palette::System_GrayText));
    return colors;
}

void Form::Set_BackColor(ColorValue color) {
    setPalette(Form_Palette(color));
}

QLabel* Form::Add_Label(const QString& text, int left, int top, int width, QWidget* parent) {
    return Add_Text(parent == nullptr ? this : parent, text, left, top, TextLook::Plain, width);
}

// Window managers that look for free room put a window half off the screen for it.
void Form::Centre_OnScreen() {
    const QRect screen = The_Screen();
    const int below = std::clamp(screen.height() - height(), 0, ToolbarRoom);
    const QPoint middle = Centered_In(screen, size());
    move(std::max(middle.x(), screen.left()),
         std::max(middle.y() - TitleBarRoom, screen.top() + below));
}

void Form::Present() {
    if (!isVisible() && isWindow() && !testAttribute(Qt::WA_Moved))
        Centre_OnScreen();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    platform::Windows::Get().Activate(winId());
}

bool Form::Unload(UnloadMode mode) {
    if (unloading || asking)
        return unloading;
    if (Program_Is_Ending())
        mode = UnloadMode::Ending;
    const QPointer<Form> alive(this);
    asking = true;
    const bool mayGo = Query_Unload(mode) || mode == UnloadMode::Ending;
    if (!alive)
        return true;
    asking = false;
    if (!mayGo)
        return false;
    unloading = true;
    On_Unload();
    if (alive) {
        hide();
        Queue_FormUnload(this);
        Q_EMIT Unloaded();
    }
    return true;
}

void Form::closeEvent(QCloseEvent* event) {
    event->setAccepted(Unload(UnloadMode::User));
}

void Form::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && Escape_Unloads())
        Unload(UnloadMode::User);
    else
        QWidget::keyPressEvent(event);
}

void Release_Forms() {
    // A form takes those with it that it owns.
    std::vector<QPointer<QWidget>> forms;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (qobject_cast<Form*>(window) != nullptr)
            forms.emplace_back(window);
    for (const auto& form : forms)
        delete form.data();
}
