// How the links menu follows the mouse: the highlight, the delay before a submenu, and who goes
// when the mouse has left.
#include "controls/program_end.h"
#include "links/menu/links_menu_v2.h"
#include "platform/dialogs.h"
#include "platform/shown_text.h"

#include <QEnterEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int WheelNotch = 120; // a step of the wheel, as the toolkit counts

// A box of the program holds its timers.
bool Timers_Rest() {
    return Program_Is_Ending() || platform::Dialogs::Get().Holds_Timers();
}

} // namespace

QRect LinksMenuV2::Row_Rect(int row) const {
    return {0, level->Layout.Tops[static_cast<std::size_t>(row)] - shift, width(), MenuRowPitch};
}

int LinksMenuV2::Row_AtPlace(const QPoint& place) const {
    return rect().contains(place) ? level->Layout.Row_At(place.y() + shift) : NoMenuRow;
}

void LinksMenuV2::Select_Row(int row) {
    if (row == highlight)
        return;
    const int before = highlight;
    highlight = row;
    for (const int changed : {before, row}) {
        if (changed != NoMenuRow)
            update(Row_Rect(changed));
    }
}

void LinksMenuV2::Mouse_Over(const QPoint& place) {
    if (!open || Program_Is_Ending())
        return;
    // A form that comes up under a mouse at rest has not been moved over.
    const auto cursor = platform::Desktop::Get().Cursor_Position();
    if (shownAt && cursor == shownAt)
        return;
    shownAt.reset();
    AvoidFadeOut = false;
    if (!MouseInsideFormTimer.isActive())
        MouseInsideFormTimer.start();
    if (ParentForm)
        ParentForm->ParentForm_ChildGotFocus();
    Mouse_AtRow(Row_AtPlace(place));
}

void LinksMenuV2::Mouse_AtRow(int row) {
    const RowMove move = Move_ToRow(selectedRow, row, level->Kinds);
    if (move == RowMove::Nothing)
        return;
    selectedRow = row;
    ShowMenuTimer.stop();
    if (move == RowMove::CloseChild) {
        ChidForm_HideAllChilds();
    } else if (move == RowMove::DelayChild) {
        delayedRow = row;
        ShowMenuTimer.start();
    }
    Select_Row(row);
}

// Fires once. With a box on view it tries again later.
void LinksMenuV2::ShowMenuTimer_Tick() {
    if (Timers_Rest())
        ShowMenuTimer.start();
    else
        Open_Child(delayedRow);
}

void LinksMenuV2::ParentForm_ChildGotFocus() {
    if (!open || hoveredCategory == NoMenuRow)
        return;
    ShowMenuTimer.stop();
    selectedRow = hoveredCategory;
    Select_Row(hoveredCategory);
    if (ParentForm)
        ParentForm->ParentForm_ChildGotFocus();
}

bool LinksMenuV2::Mouse_Is_Inside(platform::Point mouse) const {
    std::vector<MenuBounds> forms;
    std::size_t own = 0;
    for (const LinksMenuV2* form = this; form->ParentForm; form = form->ParentForm)
        ++own;
    forms.resize(own); // parents do not matter here
    for (const LinksMenuV2* form = this; form != nullptr; form = form->ChildForm) {
        if (form == this || form->open)
            forms.push_back(form->screenRect);
    }
    return MenuCascade{forms, strip}.Is_Inside(own, mouse);
}

bool LinksMenuV2::Form_Holds_Mouse() const {
    const auto mouse = platform::Desktop::Get().Cursor_Position();
    return mouse && (screenRect.Holds(*mouse) || (IsMainForm && strip.Holds(*mouse)));
}

void LinksMenuV2::MouseInsideFormTimer_Tick() {
    const auto mouse = platform::Desktop::Get().Cursor_Position();
    if (Timers_Rest() || !mouse || Mouse_Is_Inside(*mouse))
        return;
    ShowMenuTimer.stop();
    MouseInsideFormTimer.stop();
    Leave_Form();
    if (ParentForm)
        ParentForm->Parent_ChildLostFocus();
    if (ChildForm)
        ChildForm->Child_ParentLostFocus();
}

void LinksMenuV2::Child_ParentLostFocus() {
    Leave_Form();
    if (ChildForm)
        ChildForm->Child_ParentLostFocus();
}

void LinksMenuV2::Parent_ChildLostFocus() {
    hoveredCategory = NoMenuRow;
    if (Form_Holds_Mouse()) {
        // The next move counts as one onto a new row, so that the category can be opened again.
        selectedRow = NoMenuRow;
        return;
    }
    Leave_Form();
    if (ParentForm)
        ParentForm->Parent_ChildLostFocus();
}

void LinksMenuV2::enterEvent(QEnterEvent* event) {
    Mouse_Over(event->position().toPoint());
}

void LinksMenuV2::mouseMoveEvent(QMouseEvent* event) {
    Mouse_Over(event->position().toPoint());
}

void LinksMenuV2::mousePressEvent(QMouseEvent* event) {
    const bool isLeft = event->button() == Qt::LeftButton;
    Mouse_Over(event->position().toPoint());
    pressedRow = isLeft ? Row_AtPlace(event->position().toPoint()) : NoMenuRow;
}

void LinksMenuV2::mouseReleaseEvent(QMouseEvent* event) {
    const int row = Row_AtPlace(event->position().toPoint());
    if (event->button() != Qt::LeftButton || row == NoMenuRow || row != pressedRow)
        return;
    pressedRow = NoMenuRow;
    Click_Row(row); // the form may be gone now
}

void LinksMenuV2::wheelEvent(QWheelEvent* event) {
    const int before = shift;
    Shift_To(shift - event->angleDelta().y() * MenuRowPitch * 2 / WheelNotch);
    event->accept();
    if (shift != before)
        Mouse_Over(event->position().toPoint());
}

void LinksMenuV2::Shift_To(int newShift) {
    const int bounded = Bounded_Shift(newShift, level->Layout.Height, height());
    if (bounded == shift)
        return;
    // A submenu stands at its row: it does not stay when the row goes.
    ChidForm_HideAllChilds();
    shift = bounded;
    update();
}

// Empty: the row says it all.
QString LinksMenuV2::Tip_Of(int row) const {
    const QString& description = Item(row).Description;
    if (!description.isEmpty() && description != Caption(row))
        return description;
    const int room = width() - MenuLeftMargin - MenuRightMargin;
    const bool isCut = fontMetrics().horizontalAdvance(Caption(row)) > room;
    return isCut ? Caption(row) : QString();
}

void LinksMenuV2::Show_Tip(const QHelpEvent& asked) {
    const int row = open ? Row_AtPlace(asked.pos()) : NoMenuRow;
    const QString tip = row == NoMenuRow ? QString() : Tip_Of(row);
    if (tip.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(asked.globalPos(), platform::Tip_Text(tip), this, Row_Rect(row));
}

bool LinksMenuV2::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        Show_Tip(static_cast<const QHelpEvent&>(*event));
        return true;
    }
    // The focus has gone elsewhere: nobody is left to use the menu by keys.
    if (event->type() == QEvent::WindowDeactivate && Holds_Focus())
        Leave_Form();
    return QWidget::event(event);
}
