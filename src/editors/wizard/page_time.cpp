#include "editors/wizard/page_time.h"

#include "controls/chk_box.h"
#include "editors/wizard/wizard_text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace page_parts;

namespace {

constexpr int RowsTop = 68;
constexpr int RowPitch = 26;
constexpr int ColumnPitch = 140;
constexpr int Rows = 4;

} // namespace

WizardTimePage::WizardTimePage(WizardState& wizardState, QWidget* parent)
    : WizardPageView(wizardState, 42, parent) {
    Add_Text(this, u"Set the time when the reminder will be displayed:"_s, 0, 0, 0,
             TextLook::Heading);
    Add_Text(this, u"(Click to select a condition, you can select multiple conditions)"_s, 0, 16, 0,
             TextLook::Hint);
    Check2 = Add_Check(this, u"Check2"_s, u"At start up:"_s, 8, 41, [this](bool on) {
        state.Check2 = on;
        Show_State();
    });
    Check2->setAccessibleDescription(u"The reminder will be displayed when Tockly is loaded"_s);
    Add_Text(this, u"The reminder will be displayed when Tockly is loaded"_s, 112, 42);
    for (int i = 0; i < WizardTimeCount; ++i)
        Add_Time(i);
    isDefault.fill(true);
    Add_Text(this, u"The reminder will be run at:"_s, 0, RowsTop + Rows * RowPitch + 6, 0,
             TextLook::Heading);
    Label26 = Add_Text(this, {}, 0, RowsTop + Rows * RowPitch + 22, Width);
    Label26->setObjectName(u"Label26"_s);
}

void WizardTimePage::Add_Time(int index) {
    const auto at = static_cast<std::size_t>(index);
    const int left = 8 + index / Rows * ColumnPitch;
    const int top = RowsTop + index % Rows * RowPitch;
    Check3[at] = Add_Check(this, u"Check3_%1"_s.arg(index), u"At:"_s, left, top + 3,
                           [this, at](bool on) { Take_Condition(at, on); });
    Check3[at]->setAccessibleName(u"At time %1"_s.arg(index + 1));
    Text4[at] = Add_Field(this, u"Text4_%1"_s.arg(index), u"Time %1"_s.arg(index + 1),
                          {left + 48, top, 52, FieldHeight});
    Text4[at]->setText(state.Text4[at]);
    Text4[at]->installEventFilter(this);
    connect(Text4[at], &QLineEdit::textChanged, this, [this, at](const QString& text) {
        state.Text4[at] = text;
        Show_State();
    });
}

void WizardTimePage::Take_Condition(std::size_t index, bool on) {
    Check3[index]->Set_Ticked(on);
    state.Check3[index] = on;
    Show_State();
}

void WizardTimePage::Show_State() {
    const HourListView view = Rebuild_HourList(state);
    Label26->setText(view.List);
    for (std::size_t i = 0; i < Text4.size(); ++i)
        Mark_Field(Text4[i], view.Marked[i]);
}

QWidget* WizardTimePage::First_Field() const {
    return Check2;
}

bool WizardTimePage::eventFilter(QObject* watched, QEvent* event) {
    const auto found = std::find(Text4.begin(), Text4.end(), watched);
    if (found == Text4.end())
        return WizardPageView::eventFilter(watched, event);
    const auto at = static_cast<std::size_t>(found - Text4.begin());
    if (event->type() == QEvent::KeyPress) {
        const QString typed = static_cast<QKeyEvent*>(event)->text();
        if (!typed.isEmpty() && Is_DigitCharacter(typed.front()))
            Take_Condition(at, true);
    } else if (event->type() == QEvent::FocusIn && isDefault[at]) {
        isDefault[at] = false;
        // After the press that brought the focus, which would take the selection off again.
        QTimer::singleShot(0, Text4[at], &QLineEdit::selectAll);
    }
    return WizardPageView::eventFilter(watched, event);
}
