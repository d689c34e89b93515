#include "editors/list/card_list.h"

#include "controls/metrics.h"
#include "controls/text_fields.h"
#include "editors/list/card_list_accessible.h"
#include "editors/list/click_label.h"
#include "editors/list/list_rules.h"

#include <QScrollBar>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {
constexpr int Label12Top = 20;
constexpr int Label15Top = 36;
constexpr int LabelLeft = 8;
} // namespace

CardList::CardList(int height, QWidget* parent) : QWidget(parent) {
    Install_CardAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setFont(Small_Font());
    setAccessibleName(u"Reminders"_s);
    resize(CardWidth + BarWidth, height);
    Picture9 = new QWidget(this);
    Picture9->setGeometry(0, 0, CardWidth, height);
    VScroll2 = new QScrollBar(Qt::Vertical, this);
    VScroll2->setGeometry(CardWidth, 0, BarWidth, height);
    VScroll2->setSingleStep(CardPitch);
    VScroll2->setPageStep(height);
    Label12 = new QLabel(u"No reminders in this category"_s, this);
    Label12->move(LabelLeft, Label12Top);
    Label12->adjustSize();
    Label15 =
        new ClickLabel(u"Click here to view all the reminders"_s, LabelLeft, Label15Top, this);
    Label15->setCursor(Qt::PointingHandCursor);
    Label15->Look_Clickable();
    Label15->setFocusPolicy(Qt::StrongFocus);
    connect(VScroll2, &QScrollBar::valueChanged, this, &CardList::Lay_Out);
}

CardView* CardList::Add_Card() {
    auto* card = new CardView(Picture9);
    // A control made later would come behind all others of the window.
    setTabOrder(cards.empty() ? Label15 : static_cast<QWidget*>(cards.back()->p1ChkImage),
                card->Text12);
    setTabOrder(card->Text12, card->p1ChkImage);
    cards.push_back(card);
    connect(card, &CardView::Click, this, [this, card] {
        setFocus(Qt::MouseFocusReason);
        Note_Current(card->Row);
        Mark_Current();
        Q_EMIT Card_Chosen(card->Reminder);
    });
    connect(card, &CardView::Text12_Click, this, [this, card] {
        const ReminderRef chosen = card->Reminder;
        Q_EMIT Card_Chosen(chosen);
        if (card->Reminder == chosen && card->Is_Highlighted())
            Q_EMIT Text12_Click(card->Text12);
    });
    connect(card, &CardView::Text12_Change, this, [this, card] {
        if (card->Is_Highlighted())
            Q_EMIT Text12_Change(Plain_Text(*card->Text12));
    });
    connect(card, &CardView::Enabled_Changed, this, [this, card] {
        Q_EMIT Enabled_Changed(card->Reminder, card->p1ChkImage->Is_Ticked());
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
    Label12->setVisible(!any);
    Label15->setVisible(!any);
    Picture9->setVisible(any);
    const std::int64_t content = std::int64_t{CardPitch} * count;
    const std::int64_t hidden =
        std::clamp<std::int64_t>(content - height(), 0, std::numeric_limits<int>::max());
    const int row = Row_Of(current);
    currentRow = row == -1 ? std::min(currentRow, count - 1) : row;
    current = Reminder_At(currentRow);
    {
        const QSignalBlocker still(VScroll2);
        VScroll2->setRange(0, static_cast<int>(hidden));
    }
    VScroll2->setVisible(any && content >= height());
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
    if (card.Reminder != reminder && (card.Text12->hasFocus() || card.p1ChkImage->hasFocus()))
        setFocus();
    // Nor must it be undone into one.
    if (card.Reminder != reminder)
        card.Text12->document()->clearUndoRedoStacks();
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
    const int top = VScroll2->value();
    const int first = top / CardPitch;
    const int end = std::min<int>(count, (top + height() - 1) / CardPitch + 1);
    for (CardView* card : cards)
        if (card->Row < first || card->Row >= end) {
            card->Row = -1;
            if (card->Text12->hasFocus() || card->p1ChkImage->hasFocus())
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
                       card->p1ChkImage->Is_Ticked() ? IconColors::Color : IconColors::Grey);
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
