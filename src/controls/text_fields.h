// The fields of the program for text. They give back exactly what they hold, and what they do not
// take whole they refuse with a word beside the field, never in silence.
#pragma once

#include <QPlainTextEdit>

#include <functional>

class QLineEdit;

// Whether a loss of the focus means that the user has done with the field: its own menu, and
// another window, give it back.
bool Leaves_Field(Qt::FocusReason reason);

// What a field with a limit says.
QString Too_Long_Word();

// Several lines of text.
class MemoField : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit MemoField(QWidget* parent = nullptr);

    // fits: whether the field may hold a text, its lines ended by LF. What would make another text
    // is refused whole.
    void Set_Limit(std::function<bool(const QString& text)> fits);
    // The text with its lines ended by LF; nothing in it is replaced by a look-alike.
    QString Text() const;

Q_SIGNALS:
    // The text stays as it was; the field has said so.
    void Refused();

protected:
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    bool Takes(const QTextCursor& place, const QString& inserted);

    std::function<bool(const QString& text)> limit;
};

// The text with its lines ended by LF.
QString Plain_Text(const QPlainTextEdit& field);

// A box breaks lines with LF, a record with CR LF.
QString Text_ForBox(const QString& recordText);
QString Text_ForRecord(const QString& boxText);
// A text that was not edited stays as it was, whatever breaks its lines.
QString Text_ForRecord(const QString& boxText, const QString& recordText);

// The field takes no text of which "fits" says no, and then says the word.
void Limit_Field(QLineEdit* field, std::function<bool(const QString& text)> fits,
                 const QString& word = Too_Long_Word());
// The field stops where "before" and its text would not fit into a text with a 16-bit count.
void Limit_ToStoredText(QLineEdit* field, const QString& before = {});
// Whatever the field refuses (its validator, its greatest length), it says the word.
void Say_WhenRefused(QLineEdit* field, const QString& word);
