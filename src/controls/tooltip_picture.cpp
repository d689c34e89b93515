#include "controls/tooltip_picture.h"

#include "controls/frm_tooltip.h"
#include "controls/icons.h"
#include "controls/painting.h"
#include "controls/program_end.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int LookInterval = 100; // ms
constexpr int WidestText = 300;   // pixels

// Null for a number that has no text.
const TooltipText* Text_Of(int index) {
    const bool isInside = index >= 0 && static_cast<std::size_t>(index) < Global_Tooltips.size();
    return isInside ? &Global_Tooltips[static_cast<std::size_t>(index)] : nullptr;
}

} // namespace

TooltipPicture::TooltipPicture(int number, int left, int top, QWidget* parent)
    : QWidget(parent), index(number), watch(LookInterval, [this] { Mouse_Left(); }) {
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setGeometry(QRect(QPoint(left, top), Icon_Size(IconName::TooltipMark)));
    const TooltipText* text = Text_Of(index);
    setAccessibleName(text == nullptr ? u"Help"_s : u"Help: "_s + text->Title);
    if (text != nullptr)
        setAccessibleDescription(text->Text);
}

TooltipPicture::~TooltipPicture() {
    Hide_Tip();
}

void TooltipPicture::Show_Tip(const QRect& onScreen) {
    const TooltipText* text = Text_Of(index);
    if (!Global_TooltipsLoaded || text == nullptr || Program_Is_Ending())
        return;
    frmTooltip& tip = The_frmTooltip();
    if (tip.Shows_For(this))
        return;
    tip.Set_Title(text->Title);
    tip.Set_Text_and_Size(text->Text, WidestText);
    tip.Show_Beside(this, onScreen);
}

void TooltipPicture::Hide_Tip() {
    watch.Stop();
    shownByKey = false;
    if (Global_frmTooltip)
        Global_frmTooltip->Hide_For(this);
}

void TooltipPicture::mouseMoveEvent(QMouseEvent* event) {
    const auto corner = Corner_ByCursor(event->position().toPoint());
    if (!corner || !Global_TooltipsLoaded)
        return;
    Show_Tip({*corner, size()});
    watch.Start({*corner, size()});
}

// Who reads by the keyboard need not keep the mouse still.
void TooltipPicture::Mouse_Left() {
    if (!shownByKey)
        Hide_Tip();
}

void TooltipPicture::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && Global_frmTooltip && Global_frmTooltip->Shows_For(this))
        Hide_Tip();
    else
        QWidget::keyPressEvent(event);
}

void TooltipPicture::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
        shownByKey = true;
        Show_Tip(QRect(mapToGlobal(QPoint()), size()));
    }
    update();
}

void TooltipPicture::focusOutEvent(QFocusEvent*) {
    Hide_Tip();
    update();
}

void TooltipPicture::hideEvent(QHideEvent*) {
    Hide_Tip();
}

void TooltipPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(rect(),
                       Load_Icon(IconName::TooltipMark).pixmap(size(), devicePixelRatioF()));
    if (hasFocus() && window()->isActiveWindow())
        Draw_Frame(painter, rect(), palette::To_Color(palette::Focus_Mark));
}
