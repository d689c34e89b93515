#include "editors/list/plain_text.h"

#include "platform/record_text.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QValidator>

#include <limits>

namespace {

class StoredTextLimit : public QValidator {
public:
    StoredTextLimit(const QString& textBefore, QObject* owner)
        : QValidator(owner), before(textBefore) {}
    State validate(QString& text, int&) const override {
        return Fits_RecString(before + text) ? Acceptable : Invalid;
    }

private:
    QString before;
};

} // namespace

QString Plain_Text(const QPlainTextEdit& box) {
    QString text = box.document()->toRawText();
    // Shift and Enter make a line end of another kind, which is none to anybody else.
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

void Limit_ToStoredText(QLineEdit* field, const QString& before) {
    field->setMaxLength(std::numeric_limits<int>::max());
    field->setValidator(new StoredTextLimit(before, field));
}
