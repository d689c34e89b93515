#include "editors/list/page_labels.h"

#include "controls/metrics.h"

QLabel* Add_Text(const QString& text, int left, int top, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setFont(Small_Font());
    label->setTextFormat(Qt::PlainText);
    label->move(left, top);
    label->adjustSize();
    return label;
}

QLabel* Add_Heading(const QString& text, int left, int top, QWidget* parent) {
    QLabel* label = Add_Text(text, left, top, parent);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->adjustSize();
    return label;
}

QLabel* Add_Note(const QString& text, int left, int top, int width, QWidget* parent) {
    QLabel* label = Add_Text(text, left, top, parent);
    label->setWordWrap(true);
    label->resize(width, label->heightForWidth(width));
    return label;
}
