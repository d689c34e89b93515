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

    // Nothing: no row is selected.
    void Show_Row(const LinkRec* row);
    // What the panel says goes to the row it shows; false: nothing differs.
    bool Store_Row(LinkRec& row) const;
    void Set_Path(const QString& path);
    void Focus_Title();

Q_SIGNALS:
    void Browse();

private:
    QLineEdit* Add_Field(const QString& label, int top, int width);

    QLineEdit* titleField = nullptr;
    QLineEdit* pathField = nullptr;
    QLineEdit* descriptionField = nullptr;
    wbButton* wbButton1 = nullptr; // browse
    std::array<QRadioButton*, 3> sizes{};
    std::array<QLabel*, 2> hints{};
};
