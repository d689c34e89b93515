#include "toolbar/main_form.h"

#include "controls/help_topic.h"
#include "controls/icons.h"
#include "controls/program_end.h"
#include "controls/timers.h"
#include "controls/transparency.h"
#include "controls/window_shadows.h"
#include "platform/clock.h"
#include "platform/window.h"
#include "settings/global_settings.h"
#include "toolbar/mdl_tray.h"
#include "toolbar/message_strip.h"
#include "toolbar/toolbar_layout.h"

#include <QApplication>
#include <QCloseEvent>
#include <QToolTip>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The most that a window system draws; settings may hold any number.
constexpr int FarthestPixel = 16000;
// So much later the window system answers for no place that it was asked for.
constexpr std::int32_t AnswerTime = 1000; // ms
constexpr std::size_t MostAsked = 100;
constexpr TimerName OwnTimers[] = {TimerName::ResizeForm_Timer, TimerName::AutoHideTimer,
                                   TimerName::TransHandlerTimer};

std::int32_t Within_Reach(std::int32_t twips, int twipsPerPixel) {
    const std::int32_t limit = Pixels_To_Twips(FarthestPixel, twipsPerPixel);
    return std::clamp(twips, -limit, limit);
}

} // namespace

MainForm::MainForm(ToolbarCommands& toolbarCommands)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), commands(toolbarCommands) {
    setWindowTitle(u"Tockly Toolbar"_s);
    Set_HelpTopic(*this, help_page::Toolbar);
    setMinimumSize(1, 1);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    // The strip is hardly ever the active window, and has tool tips all the same.
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setMouseTracking(true);
    setContextMenuPolicy(Qt::PreventContextMenu);
    QToolTip::setFont(Small_Font());
    new WindowShadows(this);
    Build_Buttons();
    commands.On_Change([this] { Enable_Buttons(); });
    Enable_Buttons();
    Watch_Order();
    platform::Desktop::Get().On_ScreensChange([this] { Stay_OnScreens(); });
}

MainForm::~MainForm() {
    commands.On_Change({});
    platform::Desktop::Get().On_ScreensChange({});
    if (platform::Windows::Is_Provided()) {
        platform::Windows::Get().On_Restack({});
    }
    if (Global_Timers != nullptr) {
        for (const TimerName timer : OwnTimers) {
            Global_Timers->On_Tick(timer, {});
        }
    }
    Tray_RemoveIcon();
}

void MainForm::Load_Window(const StartPlace& place) {
    Set_Bounds(ToolbarDrag::Brought_In(
        {place.Left, place.Top, place.Width, PixelsY_To_Twips(ToolbarHeight)}, DragScreen::Now()));
    saved = live;
    if (Global_Timers != nullptr) {
        Global_Timers->On_Tick(TimerName::ResizeForm_Timer, [this] { ResizeForm_Tick(); });
        Global_Timers->On_Tick(TimerName::AutoHideTimer, [this] { AutoHideTimer_Tick(); });
        Global_Timers->On_Tick(TimerName::TransHandlerTimer, [] {
            Global_Timers->Enable(TimerName::TransHandlerTimer, false);
            Global_Transparency().TransparencyHandler();
        });
    }
    MouseOver();
}

void MainForm::MouseOver() {
    LastMouseOver = platform::Clock::Get().Milliseconds();
    Watch_Mouse();
}

void MainForm::Set_Bounds(const TwipsRect& wanted) {
    auto& desktop = platform::Desktop::Get();
    const int perX = desktop.TwipsPerPixelX();
    const int perY = desktop.TwipsPerPixelY();
    const TwipsRect bounds{Within_Reach(wanted.Left, perX), Within_Reach(wanted.Top, perY),
                           std::max(Within_Reach(wanted.Width, perX), perX), wanted.Height};
    if (bounds == live) {
        return;
    }
    const QRect place(Twips_To_Pixels(bounds.Left, perX), Twips_To_Pixels(bounds.Top, perY),
                      Twips_To_Pixels(bounds.Width, perX), Twips_To_Pixels(bounds.Height, perY));
    if (asked.size() == MostAsked) {
        asked.erase(asked.begin());
    }
    asked.push_back(place);
    lastAsked = platform::Clock::Get().Milliseconds();
    placing = true;
    Hold_Size(size().boundedTo(place.size()), size().expandedTo(place.size()));
    setGeometry(place);
    Hold_Size(place.size(), place.size());
    placing = false;
    live = bounds;
    UpdateToolbarRect();
    // A window that is not shown gets its events later, but its line is asked for now.
    if (!isVisible() && !collapsing) {
        Lay_Out();
    }
}

// No window manager shall size it. The limits are widened before each step: held by them, the
// window would take it in two.
void MainForm::Hold_Size(const QSize& least, const QSize& most) {
    if (QWindow* window = windowHandle()) {
        window->setMinimumSize(least);
        window->setMaximumSize(most);
    }
}

// The window manager may move the strip as well. Its answers to what the strip asked for come late:
// in the middle of a collapse they tell of places that are passed already.
void MainForm::Take_LiveBounds() {
    const QRect now = geometry();
    if (placing || now == QRect(TwipsX_To_Pixels(live.Left), TwipsY_To_Pixels(live.Top),
                                TwipsX_To_Pixels(live.Width), TwipsY_To_Pixels(live.Height))) {
        return;
    }
    if (platform::Clock::Get().Milliseconds_Since(lastAsked) < AnswerTime &&
        std::find(asked.begin(), asked.end(), now) != asked.end()) {
        return;
    }
    asked.clear();
    if (now.size() != QSize(TwipsX_To_Pixels(live.Width), TwipsY_To_Pixels(live.Height))) {
        return;
    }
    live.Left = PixelsX_To_Twips(now.x());
    live.Top = PixelsY_To_Twips(now.y());
    UpdateToolbarRect();
}

void MainForm::UpdateToolbarRect() {
    toolbarRect.Left = TwipsX_To_Pixels(live.Left);
    toolbarRect.Right = TwipsX_To_Pixels(live.Left + live.Width);
    toolbarRect.Top = TwipsY_To_Pixels(live.Top);
    toolbarRect.Bottom = TwipsY_To_Pixels(live.Top + live.Height);
    if (!collapsing && !Is_Collapsed() && isVisible()) {
        const std::int32_t height = saved.Height;
        saved = live;
        saved.Height = height;
    }
}

// A screen has gone, or become smaller.
void MainForm::Stay_OnScreens() {
    if (collapsing) {
        QTimer::singleShot(AnswerTime, this, &MainForm::Stay_OnScreens);
        return;
    }
    const DragScreen screens = DragScreen::Now();
    saved = ToolbarDrag::Brought_In(saved, screens);
    Set_Bounds(ToolbarDrag::Brought_In(live, screens));
}

void MainForm::leaveEvent(QEvent*) {
    Watch_Mouse();
}

void MainForm::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && (isMaximized() || isFullScreen())) {
        setWindowState(windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen));
    }
}

void MainForm::moveEvent(QMoveEvent*) {
    Take_LiveBounds();
}

void MainForm::resizeEvent(QResizeEvent*) {
    Take_LiveBounds();
    Picture2->setGeometry(rect());
    Cover_Excess();
    if (!collapsing && !Is_Collapsed()) {
        Lay_Out();
    }
}

// A window manager that allows no window so thin gives it more than it asked for.
void MainForm::Cover_Excess() {
    const QSize wanted(TwipsX_To_Pixels(live.Width), TwipsY_To_Pixels(live.Height));
    if (!placing && (width() > wanted.width() || height() > wanted.height())) {
        setMask(QRect(QPoint(), wanted));
    } else if (!mask().isEmpty()) {
        clearMask();
    }
}

void MainForm::Move_To(int left, int top) {
    Set_Bounds({PixelsX_To_Twips(left), PixelsY_To_Twips(top), live.Width, live.Height});
}

void MainForm::showEvent(QShowEvent*) {
    standsApart = false;
    mappedAt = live;
    Hold_Size(size(), size());
    windowHandle()->installEventFilter(this);
    Stand_Apart();
}

// A window manager that has not yet noticed the last unmapping forgets what was set since: it is
// said before the window is mapped, and again once it is to be seen.
void MainForm::Stand_Apart() {
    if (platform::Windows::Is_Provided()) {
        platform::Windows::Get().Leave_TaskBar(winId());
        platform::Windows::Get().Keep_Place(winId());
        platform::Windows::Get().Show_Everywhere(winId());
        platform::Windows::Get().Stay_Quiet(winId());
    }
    Stay_OnTop(Trigger::Now);
}

// Some window managers count the frame that the strip has not, and move it by that.
void MainForm::Take_Place() {
    if (live.Width == mappedAt.Width && live.Height == mappedAt.Height) {
        Set_Bounds(mappedAt);
        QTimer::singleShot(AnswerTime, this, &MainForm::Keep_Place);
    }
}

// Some say late that they have moved it, and have made it higher as well: such bounds are not taken
// over.
void MainForm::Keep_Place() {
    const QPoint place(TwipsX_To_Pixels(live.Left), TwipsY_To_Pixels(live.Top));
    if (live == mappedAt && pos() != place) {
        move(place);
    }
}

// What nobody sees of a strip that has just appeared is left until then: the icon of a window
// without an entry, and the bridge to screen readers, which the first name told starts.
void MainForm::Finish_Look() {
    if (!QApplication::windowIcon().isNull()) {
        return;
    }
    QApplication::setWindowIcon(Load_Icon(IconName::Program));
    Picture1->setAccessibleName(u"Message line"_s);
}

// Closing the strip ends the program, by the way that saves.
void MainForm::closeEvent(QCloseEvent* event) {
    if (Program_Is_Ending() || !commands.Has(ToolbarCommand::Unload)) {
        event->accept();
        return;
    }
    event->ignore();
    commands.Run(ToolbarCommand::Unload);
}

void MainForm::Activate() {
    AutoHide_ShowProc(true);
    if (focusWidget() == nullptr) {
        focusNextChild();
    }
    if (auto* button = qobject_cast<wbButton*>(focusWidget())) {
        button->Mark_Focus();
    } else {
        Picture1->Mark_Focus();
    }
    raise();
    Take_Focus();
}

void MainForm::Take_Focus() {
    usedBy = UsedBy::Keyboard;
    activateWindow();
    if (platform::Windows::Is_Provided()) {
        platform::Windows::Get().Activate(winId());
    }
}

// The thin strip takes the focus only from one who works with the keyboard: the next blank typed
// into another window would open it again.
void MainForm::Settle_Focus() {
    if (!isActiveWindow()) {
        return;
    }
    if (usedBy == UsedBy::Keyboard) {
        Picture2->setFocus(Qt::MouseFocusReason);
        return;
    }
    if (QWidget* holder = focusWidget()) {
        holder->clearFocus();
    }
    if (platform::Windows::Is_Provided()) {
        platform::Windows::Get().Give_FocusBack(winId());
    }
}

int MainForm::Line_Width() const {
    return Picture1->width();
}

int MainForm::Text_Width(const QString& text) const {
    return MessageText::Width_Of(text);
}

void MainForm::Put_Text(const QString& text, int width, int left) {
    Label1->Set_Text(text);
    Label1->setToolTip(text);
    Picture1->setAccessibleDescription(text);
    Label1->setGeometry(left, 0, std::max(width, 0), SmallLineHeight);
}

void MainForm::Move_Text(int left) {
    Label1->move(left, 0);
    Label1->show();
}

void MainForm::Clear_Line() {
    Label1->hide();
    Label1->Set_Text({});
    Label1->setToolTip({});
    Picture1->setAccessibleDescription({});
}
