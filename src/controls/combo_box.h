// A box of choices that the wheel changes only when it has the focus: over a box that is passed by
// on the way, it would change what nobody looks at.
#pragma once

#include <QComboBox>

class ComboBox : public QComboBox {
    Q_OBJECT
public:
    explicit ComboBox(QWidget* parent);

protected:
    void wheelEvent(QWheelEvent* event) override;
};
