#include "editors/pages/hour_list.h"

#include "controls/chk_box.h"
#include "controls/metrics.h"
#include "controls/page_parts.h"
#include "controls/painting.h"
#include "editors/pages/page_controls.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int TickLeft = 8;
constexpr int DeleteLeft = 28;
constexpr int DeleteWidth = 16;
constexpr int FirstCellLeft = 52;
constexpr int CellGap = 5;
constexpr int FieldWidth = 54;
constexpr int FieldTop = (HourRowView::Height - pages::FieldHeight) / 2;
constexpr int TextLength = 16; // letters
constexpr ColorValue StripeFill = 0xFAFAFF;
constexpr ColorValue StripeBorder = pages::Frame_Border;
constexpr int PageRows = 8;
constexpr ColorValue HotText = 0xFF0000;

QString Cell_Name(const HourRow& row, HourCell cell) {
    switch (cell) {
    case HourCell::Period:
        return u"every"_s;
    case HourCell::Until:
        return u"until"_s;
    case HourCell::Start:
        break;
    }
    return row.Type == HourRowType::At ? u"at"_s : u"starting at"_s;
}

constexpr int RowPitch = HourRowView::Height + 1;
constexpr int ScrollBarWidth = 17;

} // namespace

HrDelLabel::HrDelLabel(QWidget* parent) : LinkLabel(u"x"_s, parent) {
    setToolTip(u"Delete"_s);
}

void HrDelLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const bool marked = Is_Hot() || (hasFocus() && window()->isActiveWindow());
    QFont font = Small_Font();
    font.setUnderline(marked);
    painter.setFont(font);
    painter.setPen(palette::To_Color(marked ? HotText : palette::Black));
    painter.drawText(rect(), Qt::AlignCenter, text());
}

HourRowView::HourRowView(QWidget* parent) : QWidget(parent) {
    tick = new ChkBox({}, TickLeft, (Height - 15) / 2, this);
    connect(tick, &ChkBox::Checked, this, [this] { Q_EMIT Tick_Changed(row, true); });
    connect(tick, &ChkBox::Unchecked, this, [this] { Q_EMIT Tick_Changed(row, false); });
    remove = new HrDelLabel(this);
    remove->setGeometry(DeleteLeft, FieldTop, DeleteWidth, pages::FieldHeight);
    connect(remove, &QAbstractButton::clicked, this, [this] { Q_EMIT Delete_Click(row); });
    for (QLabel*& label : captions)
        label = Add_Text(this, {}, 0, (Height - SmallLineHeight) / 2);
    // The period stands first, and so it does for Tab.
    for (const HourCell cell : {HourCell::Period, HourCell::Start, HourCell::Until})
        fields[static_cast<std::size_t>(cell) - 1] = Make_Field(cell);
    for (QWidget* control : {static_cast<QWidget*>(tick), static_cast<QWidget*>(remove)})
        control->installEventFilter(this);
}

TimeField* HourRowView::Make_Field(HourCell cell) {
    auto* field = new TimeField(this);
    pages::Set_UpField(field, {}, {0, FieldTop, FieldWidth, pages::FieldHeight}, TextLength);
    field->setToolTip(u"Click to change"_s);
    field->installEventFilter(this);
    connect(field, &TimeField::Clicked, this, [this, cell] { Q_EMIT Cell_Clicked(row, cell); });
    connect(field, &QLineEdit::textChanged, this, [this, cell] {
        if (!filling)
            Q_EMIT Cell_Changed(row, cell);
    });
    return field;
}

void HourRowView::Show_Row(int number, const HourRow& shown) {
    if (row != number)
        Forget_Undo();
    row = number;
    setVisible(row >= 0);
    if (row < 0)
        return;
    tick->Set_Ticked(shown.Enabled);
    const QString name = u"Row %1"_s.arg(row + 1);
    tick->setAccessibleName(name + u" enabled"_s);
    remove->setAccessibleName(u"Delete row %1"_s.arg(row + 1));
    for (const HourCell cell : {HourCell::Start, HourCell::Until, HourCell::Period}) {
        Field(cell)->setAccessibleName(name + u": "_s + Cell_Name(shown, cell));
        Show_Text(cell, shown.Text(cell));
    }
    Lay_Out(shown);
}

void HourRowView::Lay_Out(const HourRow& shown) {
    std::array<bool, CellCount> used{};
    int left = FirstCellLeft;
    const std::vector<HourRowPart> parts = Parts_Of(shown.Type);
    for (std::size_t index = 0; index < captions.size(); ++index) {
        captions[index]->setVisible(index < parts.size());
        if (index >= parts.size())
            continue;
        captions[index]->setText(parts[index].Caption);
        captions[index]->adjustSize();
        captions[index]->move(left, captions[index]->y());
        left += captions[index]->width() + CellGap;
        if (!parts[index].Cell)
            continue;
        TimeField* field = Field(*parts[index].Cell);
        used[static_cast<std::size_t>(*parts[index].Cell) - 1] = true;
        field->move(left, FieldTop);
        left += FieldWidth + CellGap + 2;
    }
    for (std::size_t index = 0; index < fields.size(); ++index)
        fields[index]->setVisible(used[index]);
}

void HourRowView::Show_Text(HourCell cell, const QString& text) {
    filling = true;
    pages::Show_Text(Field(cell), text);
    filling = false;
}

void HourRowView::Forget_Undo() {
    filling = true;
    for (TimeField* field : fields)
        field->setText(field->text());
    filling = false;
}

void HourRowView::Set_Error(bool value) {
    if (atFault != value) {
        atFault = value;
        update();
    }
}

std::vector<QWidget*> HourRowView::Focus_Chain() const {
    std::vector<QWidget*> chain{tick, remove};
    for (const HourCell cell : {HourCell::Period, HourCell::Start, HourCell::Until})
        if (!Field(cell)->isHidden())
            chain.push_back(Field(cell));
    return chain;
}

// There are more rows than views: whoever walks by the keyboard has to bring the next into view.
bool HourRowView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const std::vector<QWidget*> chain = Focus_Chain();
    const auto at = std::find(chain.begin(), chain.end(), watched);
    const int place = static_cast<int>(at - chain.begin());
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
        Q_EMIT Leave_Row(row - 1, place);
        return true;
    case Qt::Key_Down:
        Q_EMIT Leave_Row(row + 1, place);
        return true;
    case Qt::Key_PageUp:
        Q_EMIT Leave_Row(row - PageRows, place);
        return true;
    case Qt::Key_PageDown:
        Q_EMIT Leave_Row(row + PageRows, place);
        return true;
    default:
        return false;
    }
}

void HourRowView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (row % 2 != 0) {
        painter.fillRect(rect(), palette::To_Color(StripeFill));
        Draw_Frame(painter, rect(), palette::To_Color(StripeBorder));
    }
    for (int inset = 0; atFault && inset < 2; ++inset)
        Draw_Frame(painter, rect().adjusted(inset, inset, -inset, -inset),
                   palette::To_Color(pages::Error_Red));
}

HourList::HourList(const QRect& place, QWidget* parent) : QWidget(parent) {
    setGeometry(place);
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(u"Hours list"_s);
    setAccessibleDescription(u"Up and Down go from row to row"_s);
    inside = new QWidget(this);
    inside->setGeometry(rect().adjusted(1, 1, -1, -1));
    // One more than fits, for rows that are cut at both edges.
    for (int index = 0; index < inside->height() / RowPitch + 2; ++index)
        Add_View();
    scrollBar = new QScrollBar(Qt::Vertical, this);
    scrollBar->setGeometry(width() - 1 - ScrollBarWidth, 1, ScrollBarWidth, inside->height());
    scrollBar->setSingleStep(RowPitch);
    scrollBar->setPageStep(inside->height());
    scrollBar->setFocusPolicy(Qt::NoFocus);
    scrollBar->hide();
    connect(scrollBar, &QScrollBar::valueChanged, this, &HourList::Scrolled);
    Fill_Views();
}

void HourList::Add_View() {
    auto* view = new HourRowView(inside);
    views.push_back(view);
    connect(view, &HourRowView::Tick_Changed, this, &HourList::Tick_Changed);
    connect(view, &HourRowView::Delete_Click, this, &HourList::Delete_Click);
    connect(view, &HourRowView::Cell_Clicked, this, &HourList::Cell_Clicked);
    connect(view, &HourRowView::Leave_Row, this, &HourList::Focus_Row);
    connect(view, &HourRowView::Cell_Changed, this, [this, view](int row, HourCell cell) {
        rows[static_cast<std::size_t>(row)].Text(cell) = view->Field(cell)->text();
        Q_EMIT Cell_Changed(row, cell);
    });
}

void HourList::Set_Rows(std::vector<HourRow> shown) {
    rows = std::move(shown);
    errorRow = -1;
    for (HourRowView* view : views)
        view->Forget_Undo();
    const std::int64_t overhang = std::int64_t{RowPitch} * Row_Count() - inside->height();
    const bool passes = overhang > 0;
    {
        const QSignalBlocker filledBelow(scrollBar);
        scrollBar->setMaximum(static_cast<int>(
            std::clamp<std::int64_t>(overhang, 0, std::numeric_limits<int>::max())));
    }
    scrollBar->setVisible(passes);
    Fill_Views();
}

void HourList::Fill_Views() {
    const int first = scrollBar->value() / RowPitch;
    const int width = inside->width() - (scrollBar->isHidden() ? 0 : ScrollBarWidth);
    for (std::size_t index = 0; index < views.size(); ++index) {
        const int row = first + static_cast<int>(index);
        static const HourRow none;
        HourRowView& view = *views[index];
        view.setGeometry(0, static_cast<int>(index) * RowPitch - scrollBar->value() % RowPitch,
                         width, HourRowView::Height);
        view.Show_Row(Is_Row(row) ? row : -1,
                      Is_Row(row) ? rows[static_cast<std::size_t>(row)] : none);
        view.Set_Error(row == errorRow);
    }
}

// The focus goes along with its row: what is typed next must not end in another one.
void HourList::Scrolled() {
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
    const std::int64_t lowest = top + RowPitch - inside->height();
    const std::int64_t value = std::min(top, std::max<std::int64_t>(lowest, scrollBar->value()));
    scrollBar->setValue(
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
    if (!scrollBar->isHidden())
        QApplication::sendEvent(scrollBar, event);
    event->accept();
}

void HourList::keyPressEvent(QKeyEvent* event) {
    const int first = scrollBar->value() / RowPitch;
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
