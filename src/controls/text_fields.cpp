#include "controls/text_fields.h"

#include "controls/field_word.h"
#include "platform/record_text.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTextDocument>
#include <QValidator>

#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

class TextLimit : public QValidator {
public:
    TextLimit(std::function<bool(const QString&)> whatFits, QObject* owner)
        : QValidator(owner), fits(std::move(whatFits)) {}
    State validate(QString& text, int&) const override { return fits(text) ? Acceptable : Invalid; }

private:
    std::function<bool(const QString&)> fits;
};

QString With_PlainLineEnds(QString text) {
    // Shift and Enter make a line end of another kind, which is none to anybody else.
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

// Whether a key press puts its text into a field.
bool Is_Typed(const QKeyEvent& event) {
    const QString text = event.text();
    return !text.isEmpty() && (text.front().isPrint() || text.front() == u'\r') &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

} // namespace

bool Leaves_Field(Qt::FocusReason reason) {
    return reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason &&
           reason != Qt::ActiveWindowFocusReason;
}

QString Too_Long_Word() {
    return u"This is too long. A text can have up to 65,535 characters, and fewer with letters of "
           u"other "
           "alphabets. Nothing was changed."_s;
}

MemoField::MemoField(QWidget* parent) : QPlainTextEdit(parent) {}

void MemoField::Set_Limit(std::function<bool(const QString& text)> fits) {
    limit = std::move(fits);
}

QString MemoField::Text() const {
    return Plain_Text(*this);
}

bool MemoField::Takes(const QTextCursor& place, const QString& inserted) {
    if (!limit || inserted.isEmpty())
        return true;
    QString text = Text();
    text.replace(place.selectionStart(), place.selectionEnd() - place.selectionStart(),
                 With_PlainLineEnds(QString(inserted).replace("\r\n"_L1, "\n"_L1)));
    if (limit(text))
        return true;
    Say_AtField(this, Too_Long_Word());
    Q_EMIT Refused();
    return false;
}

bool MemoField::canInsertFromMimeData(const QMimeData* source) const {
    return source != nullptr && source->hasText();
}

// Pasted by key, menu or middle click, or dropped. The toolkit falls over data of no format, which
// is what a clipboard holds whose owner has ended.
void MemoField::insertFromMimeData(const QMimeData* source) {
    if (canInsertFromMimeData(source) && Takes(textCursor(), source->text()))
        QPlainTextEdit::insertFromMimeData(source);
}

void MemoField::dropEvent(QDropEvent* event) {
    const bool isOwn = event->source() == this || event->source() == viewport();
    const bool takes = canInsertFromMimeData(event->mimeData()) &&
                       (isOwn || Takes(QTextCursor(document()), event->mimeData()->text()));
    if (!takes) {
        // The one who gives keeps what is not taken.
        QDragLeaveEvent leaves;
        QPlainTextEdit::dragLeaveEvent(&leaves);
        event->setDropAction(Qt::IgnoreAction);
        event->ignore();
        return;
    }
    QPlainTextEdit::dropEvent(event);
    // The names of files were taken, not the files.
    if (event->isAccepted() && event->mimeData()->hasUrls())
        event->setDropAction(Qt::CopyAction);
}

void MemoField::keyPressEvent(QKeyEvent* event) {
    if (isReadOnly() || !Is_Typed(*event) || Takes(textCursor(), event->text()))
        QPlainTextEdit::keyPressEvent(event);
}

void MemoField::inputMethodEvent(QInputMethodEvent* event) {
    if (Takes(textCursor(), event->commitString()))
        QPlainTextEdit::inputMethodEvent(event);
}

QString Plain_Text(const QPlainTextEdit& field) {
    return With_PlainLineEnds(field.document()->toRawText());
}

QString Text_ForBox(const QString& recordText) {
    QString text = recordText;
    return With_PlainLineEnds(text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n'));
}

QString Text_ForRecord(const QString& boxText) {
    QString text = boxText;
    return text.replace("\n"_L1, "\r\n"_L1);
}

QString Text_ForRecord(const QString& boxText, const QString& recordText) {
    return boxText == Text_ForBox(recordText) ? recordText : Text_ForRecord(boxText);
}

void Limit_Field(QLineEdit* field, std::function<bool(const QString& text)> fits,
                 const QString& word) {
    // One in characters would cut what is pasted.
    field->setMaxLength(std::numeric_limits<int>::max());
    field->setValidator(new TextLimit(std::move(fits), field));
    Say_WhenRefused(field, word);
}

void Limit_ToStoredText(QLineEdit* field, const QString& before) {
    Limit_Field(field, [before](const QString& text) { return Fits_RecString(before + text); });
}

void Say_WhenRefused(QLineEdit* field, const QString& word) {
    QObject::connect(field, &QLineEdit::inputRejected, field,
                     [field, word] { Say_AtField(field, word); });
}
