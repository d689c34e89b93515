// "Misc": the category and the icon.
#pragma once

#include "editors/list/icon_palette.h"

#include <QStringList>
#include <QWidget>

class ComboBox;

class MiscPage : public QWidget {
    Q_OBJECT
public:
    explicit MiscPage(QWidget* parent);

    // The text stays.
    void Set_Categories(const QStringList& names);
    QString CategoryText() const;
    // Tells nobody.
    void Set_CategoryText(const QString& text);

    ComboBox* Combo1 = nullptr;
    IconPalette* IconSelIMG = nullptr;

Q_SIGNALS:
    // From the list of the box.
    void Category_Chosen(const QString& name);
    void Delete_Category_Clicked(); // wbButton11
    void Use_Icon_Clicked();        // wbButton12
    void No_Icon_Clicked();         // wbButton13
};
