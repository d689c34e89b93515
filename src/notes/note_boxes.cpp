#include "notes/note_boxes.h"

#include "controls/metrics.h"
#include "notes/open_note.h"
#include "platform/record_text.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMimeData>
#include <QPlainTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QValidator>

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int TextMargin = 3;           // around the text of a box
constexpr qsizetype GuessedText = 4000; // of a longer text the rest counts by its length

class TitleLimit : public QValidator {
public:
    TitleLimit(QObject* parent, std::function<void()> onRefusal)
        : QValidator(parent), refused(std::move(onRefusal)) {}
    State validate(QString& text, int&) const override {
        if (Fits_RecString(text))
            return Acceptable;
        refused();
        return Invalid;
    }

private:
    std::function<void()> refused;
};

} // namespace

NoteTitleBox::NoteTitleBox(QWidget* parent) : QLineEdit(parent) {
    setFont(Small_Font());
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(u"Title"_s);
    // The limit is in bytes; one in characters would cut what is pasted.
    setFrame(false);
    setTextMargins(1, 0, 1, 0); // together with the toolkit's own: as the text below
    setMaxLength(std::numeric_limits<int>::max());
    setValidator(new TitleLimit(this, [this] { Q_EMIT Refused(); }));
}

void NoteTitleBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    Q_EMIT Focused();
}

void NoteTitleBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    Q_EMIT Left();
}

NoteTextBox::NoteTextBox(QWidget* parent) : QPlainTextEdit(parent) {
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
    connect(this, &QPlainTextEdit::textChanged, this, &NoteTextBox::Edited);
}

void NoteTextBox::Show_Text(const QString& text) {
    const QSignalBlocker silent(this);
    setPlainText(text);
}

// The plain text of the toolkit would turn fixed blanks into common ones.
QString NoteTextBox::Text() const {
    return Box_Text(document()->toRawText());
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

bool NoteTextBox::Takes(const QString& inserted) {
    if (inserted.isEmpty())
        return true;
    const QTextCursor cursor = textCursor();
    QString text = Text();
    text.replace(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart(),
                 Box_Text(inserted));
    if (Fits_Note(text))
        return true;
    Q_EMIT Refused();
    return false;
}

// Pasted, or dropped.
void NoteTextBox::insertFromMimeData(const QMimeData* source) {
    if (Takes(source->text()))
        QPlainTextEdit::insertFromMimeData(source);
}

void NoteTextBox::keyPressEvent(QKeyEvent* event) {
    const bool isTyped = !event->text().isEmpty() &&
                         (event->text().front().isPrint() || event->text().front() == u'\r');
    if (isTyped && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) &&
        !Takes(event->text()))
        return;
    QPlainTextEdit::keyPressEvent(event);
}

void NoteTextBox::inputMethodEvent(QInputMethodEvent* event) {
    if (Takes(event->commitString()))
        QPlainTextEdit::inputMethodEvent(event);
}

// The column scrolls, not the box.
void NoteTextBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void NoteTextBox::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    Q_EMIT Focused();
}

void NoteTextBox::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    Q_EMIT Left();
}
