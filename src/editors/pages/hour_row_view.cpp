#include "editors/pages/hour_row_view.h"

#include "controls/metrics.h"
#include "controls/painting.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

#include <algorithm>

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

} // namespace

HourRowView::HourRowView(QWidget* parent) : QWidget(parent) {
    p4Chk = new ChkBox({}, TickLeft, (Height - 15) / 2, this);
    connect(p4Chk, &ChkBox::Checked, this, [this] { Q_EMIT Tick_Changed(row, true); });
    connect(p4Chk, &ChkBox::Unchecked, this, [this] { Q_EMIT Tick_Changed(row, false); });
    hrDelLabel = new HrDelLabel(this);
    hrDelLabel->setGeometry(DeleteLeft, FieldTop, DeleteWidth, pages::FieldHeight);
    connect(hrDelLabel, &QAbstractButton::clicked, this, [this] { Q_EMIT Delete_Click(row); });
    for (QLabel*& label : p4label)
        label = pages::Add_Caption({}, 0, (Height - SmallLineHeight) / 2, this);
    // The period stands first, and so it does for Tab.
    for (const HourCell cell : {HourCell::Period, HourCell::Start, HourCell::Until})
        fields[static_cast<std::size_t>(cell) - 1] = Make_Field(cell);
    for (QWidget* control : {static_cast<QWidget*>(p4Chk), static_cast<QWidget*>(hrDelLabel)})
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
    p4Chk->Set_Ticked(shown.Enabled);
    const QString name = u"Row %1"_s.arg(row + 1);
    p4Chk->setAccessibleName(name + u" enabled"_s);
    hrDelLabel->setAccessibleName(u"Delete row %1"_s.arg(row + 1));
    for (const HourCell cell : {HourCell::Start, HourCell::Until, HourCell::Period}) {
        p4Text(cell)->setAccessibleName(name + u": "_s + Cell_Name(shown, cell));
        Show_Text(cell, shown.Text(cell));
    }
    Lay_Out(shown);
}

void HourRowView::Lay_Out(const HourRow& shown) {
    std::array<bool, CellCount> used{};
    int left = FirstCellLeft;
    const std::vector<HourRowPart> parts = Parts_Of(shown.Type);
    for (std::size_t index = 0; index < p4label.size(); ++index) {
        p4label[index]->setVisible(index < parts.size());
        if (index >= parts.size())
            continue;
        p4label[index]->setText(parts[index].Caption);
        p4label[index]->adjustSize();
        p4label[index]->move(left, p4label[index]->y());
        left += p4label[index]->width() + CellGap;
        if (!parts[index].Cell)
            continue;
        TimeField* field = p4Text(*parts[index].Cell);
        used[static_cast<std::size_t>(*parts[index].Cell) - 1] = true;
        field->move(left, FieldTop);
        left += FieldWidth + CellGap + 2;
    }
    for (std::size_t index = 0; index < fields.size(); ++index)
        fields[index]->setVisible(used[index]);
}

void HourRowView::Show_Text(HourCell cell, const QString& text) {
    filling = true;
    pages::Show_Text(p4Text(cell), text);
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
    std::vector<QWidget*> chain{p4Chk, hrDelLabel};
    for (const HourCell cell : {HourCell::Period, HourCell::Start, HourCell::Until})
        if (!p4Text(cell)->isHidden())
            chain.push_back(p4Text(cell));
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
