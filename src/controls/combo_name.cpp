#include "controls/combo_name.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

void Name_Combo(QComboBox* box, const QString& name, QLabel* label) {
    box->setAccessibleName(name);
    if (box->lineEdit() != nullptr)
        box->lineEdit()->setAccessibleName(name);
    if (label == nullptr) {
        label = new QLabel(name, box->parentWidget());
        label->hide();
    }
    label->setBuddy(box);
}
