#include "controls/cool_tab.h"

#include "controls/cool_tab_accessible.h"
#include "controls/metrics.h"
#include "controls/painting.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int LookInterval = 10; // ms
constexpr int CaptionMargin = 8; // pixels on either side
constexpr int LowerBy = 2;       // so much lower stand the tabs that are not selected
constexpr int LowestWithLine = 4;

} // namespace

CoolTab::CoolTab(QWidget* parent)
    : QWidget(parent), watch(LookInterval, [this] { End_MouseOver(); }) {
    setFont(Small_Font());
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    Install_CoolTabAccessibility();
    Set_Tabs(u"-1;Tab 1"_s);
}

bool CoolTab::Set_Tabs(const QString& list) {
    auto parsed = Parse_Tabs(list);
    if (!parsed)
        return false;
    End_MouseOver();
    tabs = std::move(*parsed);
    selected = Is_Tab(selected) ? selected : -1;
    update();
    return true;
}

void CoolTab::Select(int tab) {
    if (tab == selected || (tab != -1 && !Is_Tab(tab)))
        return;
    selected = tab;
    update();
    Tell_TabSelection(this);
}

void CoolTab::Choose(int tab) {
    if (!Is_Tab(tab) || !isEnabled())
        return;
    Select(tab);
    Q_EMIT TabSelected(tab);
}

int CoolTab::Tab_Width(const TabEntry& tab) const {
    if (tab.Width != WidthOfCaption)
        return tab.Width;
    return fontMetrics().horizontalAdvance(tab.Caption) + 2 * CaptionMargin;
}

QRect CoolTab::Tab_Rect(int tab) const {
    if (!Is_Tab(tab))
        return {};
    int left = 0;
    for (int i = 0; i < tab; ++i)
        left += Tab_Width(tabs[static_cast<std::size_t>(i)]);
    return {left, 0, Tab_Width(tabs[static_cast<std::size_t>(tab)]), height()};
}

QString CoolTab::Tab_Caption(int tab) const {
    return Is_Tab(tab) ? tabs[static_cast<std::size_t>(tab)].Caption : QString();
}

int CoolTab::Tab_At(const QPoint& position) const {
    for (int i = 0; i < TabCount(); ++i) {
        if (Tab_Rect(i).contains(position))
            return i;
    }
    return -1;
}

void CoolTab::mousePressEvent(QMouseEvent* event) {
    focusByKey = false;
    update();
    if (event->button() == Qt::LeftButton)
        Choose(Tab_At(event->position().toPoint()));
}

void CoolTab::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const int tab = Tab_At(at);
    if (!MouseOverHighlight || tab == -1 || tab == hot)
        return;
    const auto corner = Corner_ByCursor(at);
    if (!corner)
        return;
    hot = tab;
    watch.Start(Tab_Rect(tab).translated(*corner));
    update();
}

void CoolTab::End_MouseOver() {
    watch.Stop();
    if (hot != -1) {
        hot = -1;
        update();
    }
}

void CoolTab::keyPressEvent(QKeyEvent* event) {
    int tab = selected;
    switch (event->key()) {
    case Qt::Key_Left:
        tab = std::max(selected - 1, 0);
        break;
    case Qt::Key_Right:
        tab = std::min(selected + 1, TabCount() - 1);
        break;
    case Qt::Key_Home:
        tab = 0;
        break;
    case Qt::Key_End:
        tab = TabCount() - 1;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    focusByKey = true;
    update();
    if (tab != selected)
        Choose(tab);
}

void CoolTab::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        focusByKey = reason != Qt::MouseFocusReason;
    update();
}

void CoolTab::focusOutEvent(QFocusEvent*) {
    update();
}

void CoolTab::hideEvent(QHideEvent*) {
    End_MouseOver();
}

void CoolTab::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        update();
}

QColor CoolTab::Caption_Color(int tab) const {
    if (!isEnabled())
        return palette::To_Color(palette::System_GrayText);
    return palette::To_Color(tab == hot ? HighlightColor : palette::Black);
}

void CoolTab::Paint_Tab(QPainter& painter, int tab, const std::vector<ColorValue>& rows) const {
    const QRect place = Tab_Rect(tab);
    if (place.isEmpty())
        return;
    // Row y of the strip has the same colour in every tab, however low the tab stands.
    const int top = tab == selected ? 0 : LowerBy;
    for (int y = top + 1; y < height(); ++y)
        painter.fillRect(place.left(), y, place.width(), 1,
                         palette::To_Color(rows[static_cast<std::size_t>(y - 1)]));
    const QColor lit = palette::To_Color(BorderColor1);
    painter.fillRect(place.left(), top, place.width(), 1, lit);
    painter.fillRect(place.left(), top, 1, height() - top, lit);
    painter.fillRect(place.right(), top, 1, height() - top, palette::To_Color(BorderColor2));
    painter.setPen(Caption_Color(tab));
    const QRect inside = place.adjusted(2, top + 1, -2, -1);
    const QString text = fontMetrics().elidedText(Tab_Caption(tab), Qt::ElideRight, inside.width());
    painter.drawText(inside, Qt::AlignCenter | Qt::TextSingleLine, text);
}

void CoolTab::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int innerHeight = height() - 1;
    const auto front = Gradient_Rows(SelectedColor1, SelectedColor2, innerHeight);
    const auto back = Gradient_Rows(UnselectedColor1, UnselectedColor2, innerHeight);
    for (int i = 0; i < TabCount(); ++i)
        Paint_Tab(painter, i, i == selected ? front : back);
    if (height() >= LowestWithLine) {
        const QRect open = Tab_Rect(selected);
        const QColor line = palette::To_Color(BorderColor3);
        painter.fillRect(0, innerHeight, open.left(), 1, line);
        const int from = open.isEmpty() ? 0 : open.right() + 1;
        painter.fillRect(from, innerHeight, width() - from, 1, line);
    }
    if (hasFocus() && focusByKey && window()->isActiveWindow()) {
        const QRect place = Tab_Rect(std::max(selected, 0));
        Draw_Frame(painter, place.adjusted(2, 2, -2, -2), palette::To_Color(palette::Focus_Mark));
    }
}
