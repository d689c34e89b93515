#include "notes/note_boxes.h"

#include "controls/metrics.h"
#include "notes/open_note.h"

#include <QFontMetrics>
#include <QPlainTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int TextMargin = 3;           // around the text of a box
constexpr qsizetype GuessedText = 4000; // of a longer text the rest counts by its length

} // namespace

NoteTitleBox::NoteTitleBox(QWidget* parent) : QLineEdit(parent) {
    setFont(Small_Font());
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(u"Title"_s);
    setFrame(false);
    setTextMargins(1, 0, 1, 0); // together with the toolkit's own: as the text below
    Limit_ToStoredText(this);
}

void NoteTitleBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    Q_EMIT Focused();
}

void NoteTitleBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    Q_EMIT Left();
}

NoteTextBox::NoteTextBox(QWidget* parent) : MemoField(parent) {
    setFont(Small_Font());
    document()->setDefaultFont(Small_Font());
    document()->setDocumentMargin(TextMargin);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::ClickFocus);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(u"Text"_s);
    Set_Limit(Fits_Note);
    connect(this, &QPlainTextEdit::textChanged, this, &NoteTextBox::Edited);
}

void NoteTextBox::Show_Text(const QString& text) {
    const QSignalBlocker silent(this);
    setPlainText(text);
}

int NoteTextBox::Needed_Height() const {
    auto* layout = qobject_cast<QPlainTextDocumentLayout*>(document()->documentLayout());
    double height = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        height += layout->blockBoundingRect(block).height();
    // The last paragraph has brought the margin below it.
    return static_cast<int>(height + 0.99) + TextMargin;
}

int NoteTextBox::Guessed_Height(const QString& text, int width) {
    const QFontMetrics metrics(Small_Font());
    const int room = width - 2 * TextMargin;
    const qsizetype inLine = std::max(room / std::max(metrics.averageCharWidth(), 1), 1);
    const qsizetype scanned = std::min(text.size(), GuessedText);
    qsizetype lines = 1;
    qsizetype column = 0;
    for (qsizetype at = 0; at < scanned; ++at) {
        const bool ends = text[at] == u'\n';
        const bool wraps = !ends && ++column > inLine;
        lines += ends || wraps ? 1 : 0;
        column = ends ? 0 : (wraps ? 1 : column);
    }
    if (scanned < text.size())
        lines = lines * text.size() / scanned;
    return static_cast<int>(lines) * metrics.lineSpacing() + 2 * TextMargin;
}

// The column scrolls, not the box.
void NoteTextBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void NoteTextBox::focusInEvent(QFocusEvent* event) {
    MemoField::focusInEvent(event);
    Q_EMIT Focused();
}

void NoteTextBox::focusOutEvent(QFocusEvent* event) {
    MemoField::focusOutEvent(event);
    Q_EMIT Left();
}
