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

constexpr int TextMargin = 3;                // around the text of a box
constexpr qsizetype GuessedText = 4000;      // of a longer text the rest counts by its length
constexpr qsizetype EndlessWord = 4000;      // letters without a place to break the line
constexpr char16_t FirstIdeographs = 0x2E80; // lines break between those as well

bool Has_EndlessWord(const QString& text) {
    qsizetype letters = 0;
    for (const QChar letter : text) {
        const bool breaks = letter.isSpace() || letter == u'-' || letter >= FirstIdeographs;
        letters = breaks ? 0 : letters + 1;
        if (letters > EndlessWord)
            return true;
    }
    return false;
}

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
    Choose_Wrapping({});
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(u"Text"_s);
    Set_Limit(Fits_Note);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        Choose_Wrapping(document()->toRawText());
        Q_EMIT Edited();
    });
}

void NoteTextBox::Show_Text(const QString& text) {
    const QSignalBlocker silent(this);
    Choose_Wrapping(text);
    setPlainText(text);
}

// The toolkit looks for the end of a word again for each line that the word fills.
void NoteTextBox::Choose_Wrapping(const QString& text) {
    const auto mode = Has_EndlessWord(text) ? QTextOption::WrapAnywhere
                                            : QTextOption::WrapAtWordBoundaryOrAnywhere;
    if (wordWrapMode() != mode)
        setWordWrapMode(mode);
}

int NoteTextBox::Needed_Height() const {
    auto* layout = qobject_cast<QPlainTextDocumentLayout*>(document()->documentLayout());
    double height = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        height += layout->blockBoundingRect(block).height();
    // The last paragraph has brought the margin below it.
    return static_cast<int>(height + 0.99) + TextMargin;
}

NoteTextBox::HeightGuess::HeightGuess(int width) {
    const QFontMetrics metrics(Small_Font());
    inLine = std::max((width - 2 * TextMargin) / std::max(metrics.averageCharWidth(), 1), 1);
    lineHeight = metrics.lineSpacing();
}

int NoteTextBox::HeightGuess::Height_Of(const QString& text) const {
    const qsizetype scanned = std::min(text.size(), GuessedText);
    qsizetype lines = 1;
    qsizetype start = 0; // of a line of the text
    for (qsizetype end = 0; start <= scanned; start = end + 1, ++lines) {
        end = text.indexOf(u'\n', start);
        end = end < 0 || end > scanned ? scanned : end;
        lines += std::max<qsizetype>(end - start - 1, 0) / inLine;
    }
    --lines;
    if (scanned < text.size())
        lines = lines * text.size() / scanned;
    return static_cast<int>(lines) * lineHeight + 2 * TextMargin;
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
