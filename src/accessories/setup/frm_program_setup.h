// The window of the program-wide options.
#pragma once

#include "accessories/setup/setup_rules.h"
#include "controls/form.h"

#include <array>

class ChkBox;
class QLineEdit;
class QRadioButton;
class wbButton;

class frmProgramSetup : public Form {
    Q_OBJECT
public:
    frmProgramSetup();

    // "Ok": stores what the window shows and unloads it; stays, with a message, when a field is
    // wrong.
    void wbButton3_Click();

private:
    void Add_Effects();
    void Add_AutoHide();
    void Add_HideModes(int top);
    void Add_Rest();
    QLabel* Add_Heading(int index, const QString& text, int top);
    QLineEdit* Add_Field(const QString& name, int left, int top, int width);
    void Show_View(const SetupView& view);
    SetupView Read_View() const;

    std::array<ChkBox*, 4> p2ChkImage{};
    std::array<QRadioButton*, HideOptionCount> Option1{};
    std::array<QLabel*, 3> Label29{};
    QLineEdit* Text1 = nullptr; // the date format
    QLineEdit* Text2 = nullptr; // the wait time
    wbButton* wbButton3 = nullptr;
    wbButton* wbButton4 = nullptr;
};
