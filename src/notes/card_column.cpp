#include "notes/card_column.h"

#include "controls/painting.h"
#include "controls/palette.h"
#include "notes/note_boxes.h"
#include "platform/desktop.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int Gap = 6;
constexpr int Frame = 1;
constexpr int ScrollBarWidth = 16;
constexpr int WheelStep = 48;   // pixels for a notch
constexpr int HoverTime = 500;  // ms
constexpr int MostRounds = 20;  // until the cards in view have their true heights
constexpr int WheelNotch = 120; // in the units of the toolkit
constexpr std::int64_t MostScrollSteps = 1 << 30;

} // namespace

CardColumn::CardColumn(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(u"Notes"_s);
    view = new QWidget(this);
    VScroll1 = new QScrollBar(Qt::Vertical, this);
    VScroll1->setAccessibleName(u"Scroll the notes"_s);
    VScroll1->setSingleStep(WheelStep);
    connect(VScroll1, &QScrollBar::valueChanged, this, [this](int value) {
        if (!layingOut)
            Scroll_To(std::int64_t{value} * (1 + heights.Total() / MostScrollSteps));
    });
    Timer1.setInterval(HoverTime);
    connect(&Timer1, &QTimer::timeout, this, &CardColumn::Timer1_Tick);
}

int CardColumn::Card_Width() const {
    return view->width() - 2 * Gap;
}

void CardColumn::Show_Notes(std::vector<int> notes, Scroll scroll) {
    if (Focused_Card() != nullptr)
        setFocus();
    rows = std::move(notes);
    for (NoteCard* card : cards)
        card->Release();
    if (Row_Of(selected) == -1)
        selected = NoNote;
    underMouse = NoNote;
    if (scroll == Scroll::ToTop)
        top = 0;
    Guess_Heights();
    Lay_Out();
}

void CardColumn::Guess_Heights() {
    std::vector<int> guesses = NoteCard::Guessed_Heights(rows, Card_Width());
    for (int& height : guesses)
        height += Gap;
    heights.Reset(guesses);
}

int CardColumn::Row_Of(int note) const {
    const auto found = std::find(rows.begin(), rows.end(), note);
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

NoteCard* CardColumn::Card_Of(int index) const {
    const auto found = std::find_if(cards.begin(), cards.end(), [index](const NoteCard* card) {
        return card->Row() != -1 && card->Note() == index;
    });
    return found == cards.end() ? nullptr : *found;
}

NoteCard* CardColumn::Focused_Card() const {
    const auto found = std::find_if(cards.begin(), cards.end(), [](const NoteCard* card) {
        return card->Row() != -1 && card->Focused_Field() != -1;
    });
    return found == cards.end() ? nullptr : *found;
}

NoteCard* CardColumn::Make_Card() {
    auto* card = new NoteCard(view);
    connect(card, &NoteCard::Selected, this, [this, card] { Select_Note(card->Note()); });
    connect(card, &NoteCard::Left, this, &CardColumn::Left);
    connect(card, &NoteCard::Height_Changed, this, &CardColumn::Lay_Out);
    connect(card, &NoteCard::Delete_Asked, this,
            [this, card] { Q_EMIT Delete_Asked(card->Note()); });
    connect(card, &NoteCard::Move_Asked, this,
            [this, card](const QPoint& where) { Q_EMIT Move_Asked(card->Note(), where); });
    connect(card, &NoteCard::Caret_Moved, this, [this, card](const QRect& caret) {
        const std::int64_t above = heights.Top(card->Row()) + Gap + caret.top();
        Scroll_Into_View(above, above + caret.height());
    });
    cards.push_back(card);
    return card;
}

// The card of the row, or a free one that takes it.
NoteCard* CardColumn::Card_ForRow(int row) {
    NoteCard* free = nullptr;
    for (NoteCard* card : cards) {
        if (card->Row() == row)
            return card;
        if (card->Row() == -1)
            free = card;
    }
    if (free == nullptr)
        free = Make_Card();
    free->Show_Note(row, rows[static_cast<std::size_t>(row)]);
    return free;
}

void CardColumn::Place_Card(NoteCard& card) {
    // A box knows how its lines break only while it is shown.
    card.show();
    const int height = card.Lay_Out(Card_Width());
    heights.Set_Height(card.Row(), height + Gap);
    const std::int64_t y = heights.Top(card.Row()) + Gap - top;
    // Far out of view any place does.
    const auto far = std::int64_t{std::numeric_limits<short>::max()} * 64;
    card.setGeometry(Gap, static_cast<int>(std::clamp(y, -far, far)), Card_Width(), height);
}

// Lays out what is in view. False: a card above the view turned out to be of another height, so
// that the view has moved.
bool CardColumn::Place_Cards() {
    const NoteCard* focused = Focused_Card();
    const std::int64_t highest = std::max<std::int64_t>(heights.Total() + Gap - view->height(), 0);
    const bool isAtEnd = highest > 0 && top >= highest;
    top = std::clamp<std::int64_t>(top, 0, highest);
    const int first = heights.Row_At(top);
    const int last = heights.Row_At(top + view->height());
    for (NoteCard* card : cards)
        if (card->Row() != -1 && card != focused && (card->Row() < first || card->Row() > last))
            card->Release();
    for (int row = first; row >= 0 && row < heights.Count(); ++row) {
        if (heights.Top(row) >= top + view->height())
            break;
        const int guessed = heights.Height(row);
        NoteCard* card = Card_ForRow(row);
        Place_Card(*card);
        const int change = heights.Height(row) - guessed;
        // What stands below the first card stays where it is.
        if (row == first && change != 0 && heights.Top(row) < top && card != focused) {
            top += change;
            return false;
        }
    }
    if (focused != nullptr)
        Place_Card(*cards[static_cast<std::size_t>(std::find(cards.begin(), cards.end(), focused) -
                                                   cards.begin())]);
    const std::int64_t newHighest =
        std::max<std::int64_t>(heights.Total() + Gap - view->height(), 0);
    const bool isSettled = isAtEnd ? top == newHighest : top <= newHighest;
    if (isAtEnd)
        top = newHighest;
    return isSettled;
}

void CardColumn::Lay_Out() {
    if (layingOut || !isVisible() || Card_Width() < 1)
        return;
    layingOut = true;
    for (int round = 0; round < MostRounds && !Place_Cards(); ++round) {
    }
    Mark_Cards();
    Update_ScrollBar();
    layingOut = false;
    update();
}

void CardColumn::Update_ScrollBar() {
    const std::int64_t step = 1 + heights.Total() / MostScrollSteps;
    const std::int64_t most = std::max<std::int64_t>(heights.Total() + Gap - view->height(), 0);
    VScroll1->setRange(0, static_cast<int>(most / step));
    VScroll1->setPageStep(std::max(view->height(), 1));
    VScroll1->setValue(static_cast<int>(top / step));
    VScroll1->setVisible(most > 0);
}

void CardColumn::Scroll_To(std::int64_t newTop) {
    if (newTop == top)
        return;
    top = newTop;
    Lay_Out();
}

// from and to: pixels of the whole column. What is higher than the view shows its beginning.
void CardColumn::Scroll_Into_View(std::int64_t from, std::int64_t to) {
    if (layingOut)
        return;
    if (from < top || to - from > view->height())
        Scroll_To(from - Gap);
    else if (to > top + view->height())
        Scroll_To(to + Gap - view->height());
}

void CardColumn::Select_Note(int index) {
    if (selected == index)
        return;
    selected = index;
    Mark_Cards();
    Q_EMIT Selection_Changed();
}

void CardColumn::Mark_Cards() {
    for (NoteCard* card : cards)
        if (card->Row() != -1)
            card->Set_Marks(card->Note() == selected, card->Note() == underMouse);
}

void CardColumn::Focus_Field(int row, int field) {
    const int note = rows[static_cast<std::size_t>(row)];
    // Guessed heights on the way may put the card beside the view at first.
    for (int round = 0; round < MostRounds && Card_Of(note) == nullptr; ++round)
        Scroll_Into_View(heights.Top(row), heights.Top(row) + heights.Height(row));
    NoteCard* card = Card_Of(note);
    if (card == nullptr)
        return;
    QWidget* widget = card->Field(field);
    widget->setFocus(Qt::TabFocusReason);
    const std::int64_t above = heights.Top(row) + widget->y();
    Scroll_Into_View(above, above + std::min(widget->height() + 2 * Gap, view->height()));
}

void CardColumn::Open_NewNote(int index) {
    const int row = Row_Of(index);
    if (row == -1)
        return;
    Select_Note(index);
    Focus_Field(row, 0);
}

bool CardColumn::focusNextPrevChild(bool next) {
    const NoteCard* card = Focused_Card();
    int row = card == nullptr ? -1 : card->Row();
    int field = card == nullptr ? -1 : card->Focused_Field() + (next ? 1 : -1);
    if (card != nullptr && (field < 0 || field == NoteCard::FieldCount)) {
        row += next ? 1 : -1;
        field = next ? 0 : NoteCard::FieldCount - 1;
    }
    if (row < 0 || row >= heights.Count())
        Q_EMIT Tab_Out(next);
    else
        Focus_Field(row, field);
    return true;
}

void CardColumn::focusInEvent(QFocusEvent* event) {
    const bool byTab = event->reason() == Qt::TabFocusReason;
    if ((!byTab && event->reason() != Qt::BacktabFocusReason) || rows.empty())
        return;
    const int row = std::max(Row_Of(selected), selected == NoNote ? heights.Row_At(top) : 0);
    Focus_Field(row, byTab ? 0 : NoteCard::FieldCount - 1);
}

void CardColumn::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
        return Scroll_To(top - WheelStep);
    case Qt::Key_Down:
        return Scroll_To(top + WheelStep);
    case Qt::Key_PageUp:
        return Scroll_To(top - view->height());
    case Qt::Key_PageDown:
        return Scroll_To(top + view->height());
    case Qt::Key_Home:
        return Scroll_To(0);
    case Qt::Key_End:
        return Scroll_To(heights.Total());
    default:
        QWidget::keyPressEvent(event);
    }
}

void CardColumn::wheelEvent(QWheelEvent* event) {
    const int pixels = event->pixelDelta().y();
    Scroll_To(top - (pixels != 0 ? pixels : event->angleDelta().y() * WheelStep / WheelNotch));
    event->accept();
}

void CardColumn::resizeEvent(QResizeEvent* event) {
    view->setGeometry(Frame, Frame, std::max(width() - 2 * Frame - ScrollBarWidth, 1),
                      std::max(height() - 2 * Frame, 1));
    VScroll1->setGeometry(width() - Frame - ScrollBarWidth, Frame, ScrollBarWidth,
                          std::max(height() - 2 * Frame, 1));
    if (event->size().width() == event->oldSize().width())
        return Lay_Out();
    const int first = heights.Row_At(top);
    Guess_Heights();
    top = first < 0 ? 0 : heights.Top(first);
    Lay_Out();
}

void CardColumn::showEvent(QShowEvent*) {
    Timer1.start();
    Lay_Out();
}

void CardColumn::hideEvent(QHideEvent*) {
    Timer1.stop();
}

// Marks the card that the mouse is over.
void CardColumn::Timer1_Tick() {
    const auto cursor = platform::Desktop::Get().Cursor_Position();
    const QRect bounds(mapToGlobal(QPoint()), size());
    int note = NoNote;
    if (cursor && bounds.contains(cursor->x, cursor->y)) {
        const QPoint inside = view->mapFromGlobal(QPoint(cursor->x, cursor->y));
        for (const NoteCard* card : cards)
            if (card->Row() != -1 && card->geometry().contains(inside))
                note = card->Note();
    }
    if (note != underMouse) {
        underMouse = note;
        Mark_Cards();
    }
}

void CardColumn::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette::To_Color(palette::Toolbar_Back));
    Draw_Frame(painter, rect(), palette::To_Color(palette::Outline));
}
