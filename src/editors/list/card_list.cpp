#include "editors/list/card_list.h"

#include "controls/accessible.h"
#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/palette.h"
#include "controls/text_fields.h"
#include "editors/list/click_label.h"
#include "editors/list/list_rules.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int NothingTop = 20;
constexpr int ShowAllTop = 36;
constexpr int LabelLeft = 8;
constexpr int WheelStep = 120; // of an ordinary wheel: one card

// A list whose items are the cards.
class AccessibleCard : public AccessiblePress<CardView> {
public:
    explicit AccessibleCard(CardView* card) : AccessiblePress(card, QAccessible::ListItem) {}

    QAccessible::State state() const override {
        QAccessible::State told = QAccessibleWidget::state();
        told.selectable = true;
        told.selected = Own()->Is_Highlighted();
        return told;
    }

protected:
    void Press() override { Q_EMIT Own()->Click(); }
};

class AccessibleList : public QAccessibleWidget {
public:
    explicit AccessibleList(CardList* list) : QAccessibleWidget(list, QAccessible::List) {}
};

} // namespace

CardList::CardList(int height, QWidget* parent) : QWidget(parent) {
    Install_Accessible<CardView, AccessibleCard>();
    Install_Accessible<CardList, AccessibleList>();
    setFocusPolicy(Qt::StrongFocus);
    setFont(Small_Font());
    setAccessibleName(u"Reminders"_s);
    resize(CardWidth + BarWidth, height);
    inside = new QWidget(this);
    inside->setGeometry(0, 0, CardWidth, height);
    scrollBar = new QScrollBar(Qt::Vertical, this);
    scrollBar->setGeometry(CardWidth, 0, BarWidth, height);
    scrollBar->setSingleStep(CardPitch);
    scrollBar->setPageStep(height);
    nothing = new QLabel(u"No reminders in this category"_s, this);
    nothing->move(LabelLeft, NothingTop);
    nothing->adjustSize();
    showAll =
        new ClickLabel(u"Click here to view all the reminders"_s, LabelLeft, ShowAllTop, this);
    showAll->setCursor(Qt::PointingHandCursor);
    showAll->Look_Clickable();
    showAll->setFocusPolicy(Qt::StrongFocus);
    connect(showAll, &ClickLabel::Click, this, &CardList::All_Asked);
    connect(scrollBar, &QScrollBar::valueChanged, this, &CardList::Lay_Out);
}

CardView* CardList::Add_Card() {
    auto* card = new CardView(inside);
    // A control made later would come behind all others of the window.
    setTabOrder(cards.empty() ? showAll : static_cast<QWidget*>(cards.back()->EnabledBox),
                card->Text);
    setTabOrder(card->Text, card->EnabledBox);
    cards.push_back(card);
    connect(card, &CardView::Click, this, [this, card] {
        setFocus(Qt::MouseFocusReason);
        Note_Current(card->Row);
        Mark_Current();
        Q_EMIT Card_Chosen(card->Reminder);
    });
    connect(card, &CardView::Text_Click, this, [this, card] {
        const ReminderRef chosen = card->Reminder;
        Q_EMIT Card_Chosen(chosen);
        if (card->Reminder == chosen && card->Is_Highlighted())
            Select_SampleText(*card->Text);
    });
    connect(card, &CardView::Text_Changed, this, [this, card] {
        if (card->Is_Highlighted())
            Q_EMIT Text_Changed(card->Text->Text());
    });
    connect(card, &CardView::Enabled_Changed, this, [this, card] {
        Q_EMIT Enabled_Changed(card->Reminder, card->EnabledBox->Is_Ticked());
    });
    return card;
}

int CardList::Visible_Rows() const {
    return height() / CardPitch + 2;
}

void CardList::Set_Slots(std::vector<std::int32_t> newSlots) {
    slots = std::move(newSlots);
    const int count = static_cast<int>(slots.size());
    const bool any = count > 0;
    nothing->setVisible(!any);
    showAll->setVisible(!any);
    inside->setVisible(any);
    const std::int64_t content = std::int64_t{CardPitch} * count;
    const std::int64_t hidden =
        std::clamp<std::int64_t>(content - height(), 0, std::numeric_limits<int>::max());
    const int row = Row_Of(current);
    currentRow = row == -1 ? std::min(currentRow, count - 1) : row;
    current = Reminder_At(currentRow);
    {
        const QSignalBlocker still(scrollBar);
        scrollBar->setRange(0, static_cast<int>(hidden));
    }
    scrollBar->setVisible(any && content >= height());
    const auto wanted = static_cast<std::size_t>(std::min(count, Visible_Rows()));
    while (cards.size() < wanted)
        Add_Card();
    Refresh_Cards();
}

int CardList::Row_Of(const ReminderRef& reminder) const {
    const std::int32_t slot = reminder.Slot();
    const auto found = std::lower_bound(slots.begin(), slots.end(), slot);
    return slot == -1 || found == slots.end() || *found != slot
               ? -1
               : static_cast<int>(found - slots.begin());
}

ReminderRef CardList::Reminder_At(int row) const {
    return row == -1 ? ReminderRef() : ReminderRef::Of_Slot(slots[static_cast<std::size_t>(row)]);
}

void CardList::Note_Current(int row) {
    currentRow = row;
    current = Reminder_At(row);
}

CardContent CardList::Content_Of(std::int32_t slot) const {
    const Moment now = Read_Moment();
    const ReminderClass& reminder =
        Global_Reminders[static_cast<std::size_t>(slot)].Reminder.Peek();
    const bool isSelected = selected == ReminderRef::Of_Slot(slot);
    const Day nextRun =
        isSelected && selectedNextRun ? *selectedNextRun : NextRun_ForDisplay(reminder, now);
    CardContent content;
    content.Title = reminder.rs_Title;
    content.Text = Text_ForBox(reminder.rs_Text);
    content.NextRun = NextRun_Caption(nextRun);
    content.RunsToday = nextRun == now.Today;
    content.Enabled = reminder.rs_Enabled;
    content.DisabledForToday = reminder.rs_DisabledForToday == now.Today;
    content.Icon = isSelected && selectedIcon ? *selectedIcon : reminder.rs_Icon;
    content.Colors = reminder.rs_Enabled ? IconColors::Color : IconColors::Grey;
    return content;
}

void CardList::Show_Row(CardView& card, int row) {
    const std::int32_t slot = slots[static_cast<std::size_t>(row)];
    const ReminderRef reminder = ReminderRef::Of_Slot(slot);
    // Who was typing on the card must not go on in another reminder.
    if (card.Reminder != reminder && (card.Text->hasFocus() || card.EnabledBox->hasFocus()))
        setFocus();
    // Nor must it be undone into one.
    if (card.Reminder != reminder)
        card.Text->document()->clearUndoRedoStacks();
    card.Reminder = reminder;
    card.Row = row;
    // Somebody else may have taken reminders away since the rows were made.
    card.Show_Content(reminder.Is_Set() ? Content_Of(slot) : CardContent());
    const bool isSelected = reminder.Is_Set() && selected == reminder;
    if (card.Is_Highlighted() != isSelected)
        card.Set_Highlight(isSelected);
}

void CardList::Lay_Out() {
    const int count = static_cast<int>(slots.size());
    const int top = scrollBar->value();
    const int first = top / CardPitch;
    const int end = std::min<int>(count, (top + height() - 1) / CardPitch + 1);
    for (CardView* card : cards)
        if (card->Row < first || card->Row >= end) {
            card->Row = -1;
            if (card->Text->hasFocus() || card->EnabledBox->hasFocus())
                setFocus();
            card->hide();
        }
    for (int row = first; row < end; ++row) {
        CardView& card = *cards[static_cast<std::size_t>(row) % cards.size()];
        if (card.Row != row)
            Show_Row(card, row);
        card.move(0, static_cast<int>(std::int64_t{row} * CardPitch - top));
        card.show();
    }
    Mark_Current();
}

void CardList::Refresh_Cards() {
    for (CardView* card : cards)
        if (card->Row >= 0 && card->Row < static_cast<int>(slots.size()))
            Show_Row(*card, card->Row);
    Lay_Out();
}

void CardList::Refresh_Row_Icons() {
    for (CardView* card : cards) {
        const ReminderClass* reminder = card->Row == -1 ? nullptr : card->Reminder.Peek();
        if (reminder == nullptr)
            continue;
        const bool isSelected = card->Reminder == selected;
        card->Set_Icon(isSelected && selectedIcon ? *selectedIcon : reminder->rs_Icon,
                       card->EnabledBox->Is_Ticked() ? IconColors::Color : IconColors::Grey);
    }
}

CardView* CardList::Card_Of(const ReminderRef& reminder) const {
    if (!reminder.Is_Set())
        return nullptr;
    const auto found = std::find_if(cards.begin(), cards.end(), [&](const CardView* card) {
        return card->Row != -1 && card->Reminder == reminder;
    });
    return found == cards.end() ? nullptr : *found;
}

void CardList::Set_Selected(const ReminderRef& reminder) {
    CardView* before = Card_Of(selected);
    selected = reminder;
    selectedIcon.reset();
    selectedNextRun.reset();
    CardView* after = Card_Of(selected);
    for (CardView* card : {before, after})
        if (card != nullptr)
            Show_Row(*card, card->Row);
    if (const int row = Row_Of(selected); row != -1)
        Note_Current(row);
    Mark_Current();
}

void CardList::Set_SelectedIcon(const QString& name) {
    selectedIcon = name;
    CardView* card = Card_Of(selected);
    const ReminderClass* reminder = selected.Peek();
    if (card != nullptr && reminder != nullptr)
        card->Set_Icon(name, reminder->rs_Enabled ? IconColors::Color : IconColors::Grey);
}

void CardList::Set_SelectedNextRun(Day nextRun) {
    selectedNextRun = nextRun;
    if (CardView* card = Card_Of(selected))
        card->Set_NextRun(NextRun_Caption(nextRun), nextRun == Get_TodayDay());
}

void CardList::Mark_Current() {
    for (CardView* card : cards)
        card->Set_Current(hasFocus() && card->Row != -1 && card->Row == currentRow);
    update();
}

void CardList::Set_CurrentRow(int row) {
    Note_Current(std::clamp(row, -1, static_cast<int>(slots.size()) - 1));
    Bring_IntoView(currentRow);
    Mark_Current();
}

void CardList::Bring_IntoView(int row) {
    if (row < 0)
        return;
    const auto top = static_cast<int>(std::int64_t{row} * CardPitch);
    const int least = top + CardPitch - height();
    if (scrollBar->value() > top)
        scrollBar->setValue(top);
    else if (scrollBar->value() < least)
        scrollBar->setValue(least);
}

// -1 for a key that moves nowhere.
int CardList::Row_ForKey(int key) const {
    const int last = static_cast<int>(slots.size()) - 1;
    const int page = std::max(1, height() / CardPitch);
    switch (key) {
    case Qt::Key_Up:
        return std::max(0, currentRow - 1);
    case Qt::Key_Down:
        return std::min(last, currentRow + 1);
    case Qt::Key_PageUp:
        return std::max(0, currentRow - page);
    case Qt::Key_PageDown:
        return std::min(last, currentRow + page);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return -1;
    }
}

void CardList::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const int row = hasFocus() && !slots.empty() ? Row_ForKey(key) : -1;
    if (!hasFocus())
        QWidget::keyPressEvent(event);
    else if (row != -1)
        Set_CurrentRow(row);
    else if (event->matches(QKeySequence::Copy))
        Q_EMIT Copy_Pressed(current);
    else if (event->matches(QKeySequence::Paste))
        Q_EMIT Paste_Pressed();
    else if (key == Qt::Key_Delete)
        Q_EMIT Delete_Pressed(current);
    else if (currentRow != -1 &&
             (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter))
        Q_EMIT Card_Chosen(current);
    else
        QWidget::keyPressEvent(event);
}

void CardList::wheelEvent(QWheelEvent* event) {
    scrollBar->setValue(scrollBar->value() - event->angleDelta().y() * CardPitch / WheelStep);
    event->accept();
}

void CardList::focusInEvent(QFocusEvent* event) {
    if (currentRow == -1 && !slots.empty())
        Note_Current(std::max(0, Row_Of(selected)));
    if (event->reason() == Qt::MouseFocusReason)
        Mark_Current();
    else
        Set_CurrentRow(currentRow);
}

void CardList::focusOutEvent(QFocusEvent*) {
    Mark_Current();
}

void CardList::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (slots.empty() && hasFocus())
        Draw_Frame(painter, rect(), palette::To_Color(palette::Focus_Mark));
}
