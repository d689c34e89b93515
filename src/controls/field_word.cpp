#include "controls/field_word.h"

#include "controls/form.h"
#include "controls/metrics.h"

#include <QAccessible>
#include <QEvent>
#include <QLabel>
#include <QPointer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int StaysFor = 8000; // ms
constexpr int Margin = 4;      // around the word, and to the window's edges

// One for each window, above all its controls.
class FieldWord : public QLabel {
public:
    explicit FieldWord(QWidget* window);
    void Show_At(QWidget* newField, const QString& word);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void Go();

    QPointer<QWidget> field;
    int timer = 0;
};

FieldWord::FieldWord(QWidget* window) : QLabel(window) {
    setObjectName(u"FieldWord"_s);
    setFont(Small_Font());
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setMargin(Margin);
    setFrameShape(QFrame::Box);
    setPalette(Form_Palette(palette::Message_Back));
    setAutoFillBackground(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void FieldWord::Show_At(QWidget* newField, const QString& word) {
    Go();
    field = newField;
    field->installEventFilter(this);
    setText(word);
    const QRect place(field->mapTo(window(), QPoint()), field->size());
    const QRect room = window()->rect().adjusted(Margin, Margin, -Margin, -Margin);
    setWordWrap(false);
    const int widest = sizeHint().width();
    setWordWrap(true);
    const int width = std::min(widest, room.width());
    resize(width, heightForWidth(width));
    int top = place.bottom() + 2;
    if (top + height() > room.bottom())
        top = std::max(place.top() - height() - 1, room.top());
    move(std::max(std::min(place.left(), room.right() - width + 1), room.left()), top);
    show();
    raise();
    timer = startTimer(StaysFor);
    QAccessibleEvent said(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

void FieldWord::Go() {
    if (timer != 0)
        killTimer(timer);
    timer = 0;
    if (field != nullptr)
        field->removeEventFilter(this);
    field = nullptr;
    hide();
}

bool FieldWord::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
        Go();
        break;
    default:
        break;
    }
    return QLabel::eventFilter(watched, event);
}

void FieldWord::timerEvent(QTimerEvent* event) {
    if (event->timerId() == timer)
        Go();
    else
        QLabel::timerEvent(event);
}

} // namespace

void Say_AtField(QWidget* field, const QString& word) {
    auto* shown = field->window()->findChild<QLabel*>(u"FieldWord"_s, Qt::FindDirectChildrenOnly);
    if (shown == nullptr)
        shown = new FieldWord(field->window());
    static_cast<FieldWord*>(shown)->Show_At(field, word);
}
