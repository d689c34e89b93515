// The eighteen icons to choose from, one or none of them chosen.
#pragma once

#include "controls/reminder_icons.h"

#include <QAbstractButton>

#include <array>

// The frame of one icon.
class IconSelectPicture : public QAbstractButton {
    Q_OBJECT
public:
    IconSelectPicture(const QString& name, QWidget* parent);
    // The icon's name.
    const QString Tag;

Q_SIGNALS:
    // An arrow key.
    void Go(int columns, int rows);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void nextCheckState() override {}
    void paintEvent(QPaintEvent* event) override;
    QSize sizeHint() const override { return size(); }
};

class IconPalette : public QWidget {
    Q_OBJECT
public:
    explicit IconPalette(QWidget* parent);

    // Without regard to case; an unknown name chooses none. By the program: tells nobody.
    void Select_Icon_By_Name(const QString& name);
    // -1 = none.
    int Get_Selected_IconIndex() const { return selected; }
    // As the palette spells it; empty when none is chosen.
    QString Selected_Name() const;

Q_SIGNALS:
    void Icon_Clicked(const QString& name);

private:
    void Go_From(int index, int columns, int rows);
    void Set_TabStop(int index);

    static constexpr int Columns = 6;
    std::array<IconSelectPicture*, ReminderIconCount> frames{};
    int selected = -1;
};
