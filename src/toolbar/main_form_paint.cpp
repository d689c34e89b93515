// How the strip looks, and staying above other windows.
#include "controls/painting.h"
#include "controls/palette.h"
#include "platform/clock.h"
#include "platform/window.h"
#include "settings/global_settings.h"
#include "toolbar/main_form.h"
#include "toolbar/message_strip.h"
#include "toolbar/toolbar_layout.h"

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace {

// Being put on top can make the window system ask for another painting.
constexpr std::int32_t TopmostPause = 1000; // ms

void Draw(QPainter& painter, const LayoutLine& line, ColorValue color) {
    Draw_Line(painter, {line.X1, line.Y1}, {line.X2, line.Y2}, palette::To_Color(color));
}

} // namespace

void MainForm::Lay_Out() {
    const ToolbarLayout at = Layout_At(width());
    wbButton1->setGeometry(at.wbButton1);
    wbButton2->setGeometry(at.wbButton2);
    wbButton3->setGeometry(at.wbButton3);
    wbButton4->setGeometry(at.wbButton4);
    wbButton5->setGeometry(at.wbButton5);
    wbButton6->setGeometry(at.wbButton6);
    Picture1->setGeometry(at.Picture1);
    update();
}

void MainForm::paintEvent(QPaintEvent* event) {
    const ToolbarLayout at = Layout_At(width());
    QPainter painter(this);
    painter.fillRect(event->rect(), palette::To_Color(palette::Toolbar_Back));
    Draw(painter, at.Line1, palette::White);
    Draw(painter, at.Line4, palette::Outline);
    Draw(painter, at.Line5, palette::Outline);
    Draw(painter, at.Line2, palette::Message_Shadow);
    Draw(painter, at.Line3, palette::Message_Shadow);
    Draw_Frame(
        painter, at.Shape2,
        palette::To_Color(Picture1->Shows_Focus() ? palette::Focus_Mark : palette::Message_Frame));
    Draw_Frame(painter, at.Shape1, palette::To_Color(palette::Outline));
    Stay_OnTop(Trigger::Paint);
}

void MainForm::Stay_OnTop(Trigger trigger) {
    if (!Global_TopForm || !platform::Windows::Is_Provided()) {
        return;
    }
    auto& clock = platform::Clock::Get();
    if (trigger == Trigger::Paint &&
        (collapsing || (topmostCalled && clock.Milliseconds_Since(lastTopmost) < TopmostPause))) {
        return;
    }
    topmostCalled = true;
    lastTopmost = clock.Milliseconds();
    platform::Windows::Get().Set_Topmost(winId(), true);
    // Menus are no windows to the window manager, and would be covered.
    if (QApplication::activePopupWidget() == nullptr) {
        platform::Windows::Get().Raise(winId(), platform::RaiseOver::Others);
    }
}

// Another window that is above as well may come over the strip, and nothing of the strip's own
// would notice.
void MainForm::Watch_Order() {
    if (!platform::Windows::Is_Provided()) {
        return;
    }
    restackTimer.setSingleShot(true);
    connect(&restackTimer, &QTimer::timeout, this, &MainForm::Come_Up);
    platform::Windows::Get().On_Restack([this] {
        if (Global_TopForm && isVisible() && !restackTimer.isActive()) {
            const auto since = platform::Clock::Get().Milliseconds_Since(lastTopmost);
            restackTimer.start(std::clamp(TopmostPause - since, 0, TopmostPause));
        }
    });
}

void MainForm::Come_Up() {
    if (collapsing || QApplication::activePopupWidget() != nullptr) {
        restackTimer.start(TopmostPause);
    } else if (Global_TopForm && isVisible()) {
        lastTopmost = platform::Clock::Get().Milliseconds();
        platform::Windows::Get().Raise(winId(), platform::RaiseOver::Others);
    }
}
