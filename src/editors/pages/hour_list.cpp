#include "editors/pages/hour_list.h"

#include "controls/painting.h"
#include "platform/desktop.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowPitch = HourRowView::Height + 1;
constexpr int ScrollBarWidth = 17;

} // namespace

HourList::HourList(const QRect& place, QWidget* parent) : QWidget(parent) {
    setGeometry(place);
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(u"Hours list"_s);
    setAccessibleDescription(u"Up and Down go from row to row"_s);
    Picture4 = new QWidget(this);
    Picture4->setGeometry(rect().adjusted(1, 1, -1, -1));
    // One more than fits, for rows that are cut at both edges.
    const int inside = Picture4->height();
    for (int index = 0; index < inside / RowPitch + 2; ++index)
        Add_View();
    VScroll1 = new QScrollBar(Qt::Vertical, this);
    VScroll1->setGeometry(width() - 1 - ScrollBarWidth, 1, ScrollBarWidth, inside);
    VScroll1->setSingleStep(RowPitch);
    VScroll1->setPageStep(inside);
    VScroll1->setFocusPolicy(Qt::NoFocus);
    VScroll1->hide();
    connect(VScroll1, &QScrollBar::valueChanged, this, &HourList::VScroll1_Change);
    Fill_Views();
}

void HourList::Add_View() {
    auto* view = new HourRowView(Picture4);
    views.push_back(view);
    connect(view, &HourRowView::Tick_Changed, this, &HourList::Tick_Changed);
    connect(view, &HourRowView::Delete_Click, this, &HourList::Delete_Click);
    connect(view, &HourRowView::Cell_Clicked, this, &HourList::Cell_Clicked);
    connect(view, &HourRowView::Leave_Row, this, &HourList::Focus_Row);
    connect(view, &HourRowView::Cell_Changed, this, [this, view](int row, HourCell cell) {
        rows[static_cast<std::size_t>(row)].Text(cell) = view->p4Text(cell)->text();
        Q_EMIT Cell_Changed(row, cell);
    });
}

void HourList::Set_Rows(std::vector<HourRow> shown) {
    rows = std::move(shown);
    errorRow = -1;
    for (HourRowView* view : views)
        view->Forget_Undo();
    const std::int64_t overhang = std::int64_t{RowPitch} * Row_Count() - Picture4->height();
    const bool passes = overhang > 0;
    {
        const QSignalBlocker filledBelow(VScroll1);
        VScroll1->setMaximum(static_cast<int>(
            std::clamp<std::int64_t>(overhang, 0, std::numeric_limits<int>::max())));
    }
    VScroll1->setVisible(passes);
    Fill_Views();
}

void HourList::Fill_Views() {
    const int first = VScroll1->value() / RowPitch;
    const int width = Picture4->width() - (VScroll1->isHidden() ? 0 : ScrollBarWidth);
    for (std::size_t index = 0; index < views.size(); ++index) {
        const int row = first + static_cast<int>(index);
        static const HourRow none;
        HourRowView& view = *views[index];
        view.setGeometry(0, static_cast<int>(index) * RowPitch - VScroll1->value() % RowPitch,
                         width, HourRowView::Height);
        view.Show_Row(Is_Row(row) ? row : -1,
                      Is_Row(row) ? rows[static_cast<std::size_t>(row)] : none);
        view.Set_Error(row == errorRow);
    }
}

// The focus goes along with its row: what is typed next must not end in another one.
void HourList::VScroll1_Change() {
    int row = -1;
    int place = 0;
    for (const HourRowView* view : views) {
        const std::vector<QWidget*> chain = view->Focus_Chain();
        const auto at = std::find(chain.begin(), chain.end(), QApplication::focusWidget());
        if (at == chain.end())
            continue;
        row = view->Row();
        place = static_cast<int>(at - chain.begin());
    }
    Fill_Views();
    if (row < 0)
        return;
    if (HourRowView* view = View_Of(row))
        view->Focus_Chain()[static_cast<std::size_t>(place)]->setFocus();
    else
        setFocus();
}

HourRowView* HourList::View_Of(int row) const {
    const auto found = std::find_if(views.begin(), views.end(), [row](const HourRowView* view) {
        return row >= 0 && view->Row() == row;
    });
    return found == views.end() ? nullptr : *found;
}

void HourList::Set_Text(int row, HourCell cell, const QString& text) {
    if (!Is_Row(row))
        return;
    rows[static_cast<std::size_t>(row)].Text(cell) = text;
    if (HourRowView* view = View_Of(row))
        view->Show_Text(cell, text);
}

void HourList::Set_Enabled(int row, bool on) {
    if (Is_Row(row))
        rows[static_cast<std::size_t>(row)].Enabled = on;
}

void HourList::Note_Stored(const ReminderClass& reminder) {
    for (int row = 0; row < Row_Count() && row <= reminder.HourSetupList_Size(); ++row)
        rows[static_cast<std::size_t>(row)].Stored = reminder.GetHourSetup(row);
}

void HourList::Scroll_To(int row) {
    if (!Is_Row(row))
        return;
    const std::int64_t top = std::int64_t{RowPitch} * row;
    const std::int64_t lowest = top + RowPitch - Picture4->height();
    const std::int64_t value = std::min(top, std::max<std::int64_t>(lowest, VScroll1->value()));
    VScroll1->setValue(
        static_cast<int>(std::min<std::int64_t>(value, std::numeric_limits<int>::max())));
}

void HourList::Mark_Error(int row) {
    errorRow = row;
    for (HourRowView* view : views)
        view->Set_Error(row >= 0 && view->Row() == row);
}

void HourList::Focus_Row(int row, int place) {
    if (rows.empty())
        return;
    row = std::clamp(row, 0, Row_Count() - 1);
    Scroll_To(row);
    HourRowView* view = View_Of(row);
    if (view == nullptr)
        return;
    const std::vector<QWidget*> chain = view->Focus_Chain();
    const auto last = static_cast<int>(chain.size()) - 1;
    chain[static_cast<std::size_t>(std::clamp(place, 0, last))]->setFocus(Qt::TabFocusReason);
}

void HourList::wheelEvent(QWheelEvent* event) {
    if (!VScroll1->isHidden())
        QApplication::sendEvent(VScroll1, event);
    event->accept();
}

void HourList::keyPressEvent(QKeyEvent* event) {
    const int first = VScroll1->value() / RowPitch;
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up)
        Focus_Row(first, 0);
    else
        QWidget::keyPressEvent(event);
}

void HourList::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette::To_Color(palette::White));
    Draw_Frame(painter, rect(), palette::To_Color(palette::Outline));
}
