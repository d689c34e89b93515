// The properties of the selected link: title, path, description and start size.
#pragma once

#include "links/store/link_rec.h"

#include <QWidget>

#include <array>

class QLabel;
class QLineEdit;
class QRadioButton;
class wbButton;

class PropertyPanel : public QWidget {
    Q_OBJECT
public:
    explicit PropertyPanel(QWidget* parent);

    // nullptr: no row is selected.
    void Show_Row(const LinkRec* row);
    // Puts into the row that it shows what somebody has changed here.
    void Store_Row(LinkRec& row) const;
    // False: no file could hold it.
    bool Set_Path(const QString& path);
    void Focus_Title();

Q_SIGNALS:
    void Browse();
    void Entered(); // Enter in a field

private:
    enum class Before { Nothing, Depth };
    QLabel* Add_Heading(const QString& text, int top, int tip);
    QLineEdit* Add_Field(const QString& label, int top, int width, int tip, Before before);
    void Add_Sizes(int top);

    QLineEdit* titleField = nullptr;
    QLineEdit* pathField = nullptr;
    QLineEdit* descriptionField = nullptr;
    wbButton* wbButton1 = nullptr; // browse
    std::array<QRadioButton*, 3> sizes{};
    QLabel* hint = nullptr;
};
