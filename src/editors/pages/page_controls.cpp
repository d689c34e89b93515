#include "editors/pages/page_controls.h"

#include "controls/combo_box.h"
#include "controls/combo_name.h"
#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/text_fields.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int MarkGap = 2;

} // namespace

void pages::Set_UpField(QLineEdit* field, const QString& name, const QRect& place, int maxLength) {
    field->setFont(Small_Font());
    field->setGeometry(place);
    Limit_Field(
        field, [maxLength](const QString& text) { return text.size() <= maxLength; },
        u"This is too long: up to %1 letters. Nothing was changed."_s.arg(maxLength));
    field->setAccessibleName(name);
}

void pages::Show_Text(QLineEdit* field, const QString& text) {
    if (field->text() != text)
        field->setText(text);
}

ComboBox* pages::Add_CategoryBox(QWidget* parent, const QRect& place, QLabel* label) {
    auto* box = new ComboBox(parent);
    box->setFont(Small_Font());
    box->setEditable(true);
    box->setCompleter(nullptr);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setGeometry(place);
    Limit_ToStoredText(box->lineEdit());
    Name_Combo(box, u"Category"_s, label);
    return box;
}

Shape::Shape(const QRect& place, const Look& shown, QWidget* parent)
    : QWidget(parent), look(shown) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(place);
}

void Shape::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (look.Fill)
        painter.fillRect(rect(), palette::To_Color(*look.Fill));
    for (int inset = 0; inset < look.Thickness; ++inset)
        Draw_Frame(painter, rect().adjusted(inset, inset, -inset, -inset),
                   palette::To_Color(look.Border));
}

Shape* Make_ErrorShape(const QRect& around, QWidget* parent) {
    const QRect place = around.adjusted(-MarkGap, -MarkGap, MarkGap, MarkGap);
    auto* shape = new Shape(place, {std::nullopt, pages::Error_Red, MarkGap}, parent);
    shape->hide();
    return shape;
}

void TimeField::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT Clicked();
}

void TimeField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    Q_EMIT Got_Focus();
}

void TimeField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason)
        Q_EMIT Lost_Focus();
}
