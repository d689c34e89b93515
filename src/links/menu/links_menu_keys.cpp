// The links menu by keyboard.
#include "controls/program_end.h"
#include "links/menu/links_menu_v2.h"
#include "platform/clock.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QKeyEvent>

namespace {

constexpr std::int32_t LettersBelongTogether = 1000; // ms

} // namespace

LinksMenuV2& LinksMenuV2::Key_Form() {
    LinksMenuV2* form = &Root();
    for (LinksMenuV2* next = form; next != nullptr && next->open; next = next->ChildForm) {
        if (next->selectedRow != NoMenuRow)
            form = next;
    }
    return *form;
}

void LinksMenuV2::keyPressEvent(QKeyEvent* event) {
    if (!open || Program_Is_Ending() || !Key_Form().Key_Pressed(*event))
        QWidget::keyPressEvent(event);
}

bool LinksMenuV2::Key_Pressed(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Down:
        Choose_Row(Next_MenuRow(level->Kinds, selectedRow, 1));
        return true;
    case Qt::Key_Up:
        Choose_Row(Next_MenuRow(level->Kinds, selectedRow, -1));
        return true;
    case Qt::Key_Home:
        Choose_Row(Next_MenuRow(level->Kinds, NoMenuRow, 1));
        return true;
    case Qt::Key_End:
        Choose_Row(Next_MenuRow(level->Kinds, NoMenuRow, -1));
        return true;
    case Qt::Key_Right:
        Enter_Child();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (selectedRow != NoMenuRow && Kind(selectedRow) == MenuRowKind::Category)
            Enter_Child();
        else
            Click_Row(selectedRow);
        return true;
    case Qt::Key_Left:
        if (!IsMainForm)
            Leave_Form();
        return true;
    case Qt::Key_Escape:
        Leave_Form();
        if (Holds_Focus())
            Q_EMIT Focus_Returned();
        return true;
    default:
        return Take_Letter(event.text());
    }
}

// The row, and with it the form, is the one the keys are for.
void LinksMenuV2::Choose_Row(int row) {
    if (row == NoMenuRow)
        return;
    ShowMenuTimer.stop();
    if (row != hoveredCategory)
        ChidForm_HideAllChilds();
    Shift_To(Shift_ToShow(level->Layout, row, shift, height()));
    selectedRow = row;
    Select_Row(row);
    Tell_ScreenReader(row);
}

void LinksMenuV2::Enter_Child() {
    if (selectedRow == NoMenuRow || Kind(selectedRow) != MenuRowKind::Category)
        return;
    Click_Row(selectedRow);
    if (ChildForm && ChildForm->open)
        ChildForm->Choose_Row(Next_MenuRow(ChildForm->level->Kinds, NoMenuRow, 1));
}

// Letters typed one after the other look for a row that begins with them; the same one again goes
// on to the next row.
bool LinksMenuV2::Take_Letter(const QString& text) {
    if (text.isEmpty() || !text.front().isPrint())
        return false;
    auto& clock = platform::Clock::Get();
    const bool isLate = clock.Milliseconds_Since(lastTyped) > LettersBelongTogether;
    lastTyped = clock.Milliseconds();
    typed = isLate ? text : typed + text;
    const bool isSame = typed.count(typed.front(), Qt::CaseInsensitive) == typed.size();
    const QString start = isSame ? typed.left(1) : typed;
    const int from = isSame && selectedRow != NoMenuRow ? selectedRow + 1 : selectedRow;
    Choose_Row(Find_MenuRow(level->Captions, level->Kinds, from, start));
    return true;
}

void LinksMenuV2::Tell_ScreenReader(int row) {
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

// The window manager's way of closing one of the forms is that of the mouse.
void LinksMenuV2::closeEvent(QCloseEvent* event) {
    event->ignore();
    Root().Leave_Form();
}
