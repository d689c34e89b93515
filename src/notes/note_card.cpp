#include "notes/note_card.h"

#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/palette.h"
#include "core/date_text.h"
#include "notes/note_boxes.h"
#include "notes/note_link.h"
#include "notes/open_note.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QPainter>
#include <QTextCursor>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 6;
constexpr int Gap = 4;
constexpr int FrameWidth = 1;   // around the boxes, drawn by the card
constexpr int TitleHeight = 20; // with its frame
constexpr int FootHeight = 15;
constexpr int BesideText = // above and below it
    TitleHeight + FootHeight + 2 * (Margin + Gap + FrameWidth);
constexpr ColorValue CardBack = palette::White;
constexpr ColorValue SelectedBack = 0xC0FFFF;
constexpr ColorValue QuietFrame = 0xC8C8C8;

} // namespace

NoteCard::NoteCard(QWidget* parent) : QWidget(parent) {
    Text1 = new NoteTitleBox(this);
    Text2 = new NoteTextBox(this);
    Label2 = new QLabel(this);
    Label2->setTextFormat(Qt::PlainText);
    moveLink = new NoteLink(u"Move to category"_s, this);
    Label7 = new NoteLink(u"Delete note"_s, this);
    QFont bold = Small_Font();
    bold.setBold(true);
    Text1->setFont(bold);
    Label2->setFont(Small_Font());
    connect(Text1, &QLineEdit::textEdited, this,
            [this](const QString& title) { Edit_NoteTitle(note, title); });
    connect(Text2, &NoteTextBox::Edited, this, &NoteCard::Text_Edited);
    connect(Text1, &NoteTitleBox::Focused, this, &NoteCard::Selected);
    connect(Text2, &NoteTextBox::Focused, this, &NoteCard::Text_Focused);
    connect(Text1, &NoteTitleBox::Left, this, &NoteCard::Left);
    connect(Text2, &NoteTextBox::Left, this, &NoteCard::Left);
    connect(Text2, &QPlainTextEdit::cursorPositionChanged, this, [this] {
        if (Text2->hasFocus())
            Q_EMIT Caret_Moved(Text2->cursorRect().translated(Text2->pos()));
    });
    connect(this, &NoteCard::Selected, this, qOverload<>(&QWidget::update));
    connect(this, &NoteCard::Left, this, qOverload<>(&QWidget::update));
    connect(Label7, &QAbstractButton::clicked, this, &NoteCard::Delete_Asked);
    connect(moveLink, &QAbstractButton::clicked, this,
            [this] { Q_EMIT Move_Asked(moveLink->mapToGlobal(moveLink->rect().bottomLeft())); });
}

void NoteCard::Show_Note(int newRow, int index) {
    row = newRow;
    note = index;
    const NoteRec& record = Global_Notes[static_cast<std::size_t>(index)];
    Text1->setText(record.Title);
    Text1->setCursorPosition(0);
    Text2->Show_Text(Text_ForBox(record.Text));
    Label2->setText(u"Created on: "_s + DayToDateString(record.CreatedDay));
    setAccessibleName(record.Title);
}

void NoteCard::Release() {
    row = -1;
    note = NoNote;
    hide();
}

void NoteCard::Set_Marks(bool selected, bool underMouse) {
    if (isSelected == selected && isUnderMouse == underMouse)
        return;
    isSelected = selected;
    isUnderMouse = underMouse;
    update();
}

int NoteCard::Lay_Out(int width) {
    const int left = Margin + FrameWidth;
    const int room = width - 2 * left;
    const int textTop = Margin + TitleHeight + Gap + FrameWidth;
    Text1->setGeometry(left, left, room, TitleHeight - 2 * FrameWidth);
    if (Text2->width() != room)
        Text2->resize(room, std::max(Text2->height(), 1));
    const int textHeight = Text2->Needed_Height();
    Text2->setGeometry(left, textTop, room, textHeight);
    const int footTop = textTop + textHeight + FrameWidth + Gap;
    int right = width - Margin;
    for (NoteLink* link : {Label7, moveLink}) {
        right -= link->width();
        link->move(right, footTop);
        right -= 2 * Gap;
    }
    Label2->setGeometry(Margin, footTop, std::max(right - Margin, 0), FootHeight);
    return textHeight + BesideText;
}

std::vector<int> NoteCard::Guessed_Heights(const std::vector<int>& notes, int width) {
    const NoteTextBox::HeightGuess guess(width - 2 * (Margin + FrameWidth));
    std::vector<int> heights;
    heights.reserve(notes.size());
    for (const int index : notes)
        heights.push_back(guess.Height_Of(Global_Notes[static_cast<std::size_t>(index)].Text) +
                          BesideText);
    return heights;
}

QWidget* NoteCard::Field(int number) const {
    QWidget* const fields[FieldCount] = {Text1, Text2, moveLink, Label7};
    return fields[std::clamp(number, 0, FieldCount - 1)];
}

int NoteCard::Focused_Field() const {
    for (int number = 0; number < FieldCount; ++number)
        if (Field(number) == window()->focusWidget())
            return number;
    return -1;
}

// The words that ask for a text make room for it.
void NoteCard::Text_Focused() {
    if (Text2->Text() == NewNoteText) {
        QTextCursor all(Text2->document());
        all.select(QTextCursor::Document);
        all.removeSelectedText();
    }
    Q_EMIT Selected();
}

void NoteCard::Text_Edited() {
    Edit_NoteText(note, Text2->Text());
    Q_EMIT Height_Changed();
}

void NoteCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette::To_Color(isSelected ? SelectedBack : CardBack));
    const ColorValue frame = isSelected ? palette::Message_Frame : palette::Outline;
    Draw_Frame(painter, rect(), palette::To_Color(isSelected || isUnderMouse ? frame : QuietFrame));
    for (const QWidget* box : {Field(0), Field(1)})
        Draw_Frame(painter,
                   box->geometry().adjusted(-FrameWidth, -FrameWidth, FrameWidth, FrameWidth),
                   palette::To_Color(box->hasFocus() ? palette::Focus_Mark : palette::Outline));
}

void NoteCard::mousePressEvent(QMouseEvent*) {
    Q_EMIT Selected();
}

void NoteCard::contextMenuEvent(QContextMenuEvent* event) {
    Q_EMIT Selected();
    Q_EMIT Move_Asked(event->globalPos());
}
