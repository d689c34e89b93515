// The list of the note categories, each with its icon and the count of its notes. A right click
// asks for the menu of its row and leaves the selection alone.
#pragma once

#include <QListWidget>

class CategoryList : public QListWidget {
    Q_OBJECT
public:
    explicit CategoryList(QWidget* parent = nullptr);

    // From the tables. By the program: tells nobody. selected: -1 = none.
    void Fill(int selected);

Q_SIGNALS:
    void Category_Chosen(int category); // by the user
    void Menu_Asked(int category, const QPoint& where);
    void Rename_Asked(int category);
    void Delete_Asked(int category);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
};
