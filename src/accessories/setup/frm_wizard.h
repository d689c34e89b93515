// The wizard that leads a new user through the main settings. The toolbar moves while its place is
// chosen; nothing is stored before "Finish".
#pragma once

#include "accessories/setup/hide_test.h"
#include "accessories/setup/setup_rules.h"
#include "controls/form.h"

#include <array>

class ChkBox;
class QLineEdit;
class QRadioButton;
class wbButton;

class frmWizard : public Form {
    Q_OBJECT
public:
    frmWizard();

    void TestHideButton_Click();

protected:
    bool Query_Unload(UnloadMode mode) override;

private:
    // frm_wizard_pages.cpp
    void Add_Frame();
    void Add_Steps();
    void Add_Buttons();
    void Add_Welcome(QWidget* page);
    void Add_AutoHide(QWidget* page);
    void Add_Position(QWidget* page);
    void Add_DateFormat(QWidget* page);
    void Add_StartUp(QWidget* page);
    void Add_Finish(QWidget* page);
    void Add_OptionLabel(const QString& text, int top, int width, QWidget* page,
                         QRadioButton* option);
    QRadioButton* Add_Option(const QString& text, int top, QWidget* page);

    void Take_Toolbar();
    void Show_View(const WizardView& view);
    WizardView Read_View() const;
    void Show_Page(int page);
    void Highlight_Step(int step);
    void Next_Click();
    void Option1_Click(int index);
    void Enable_Buttons(bool enabled);
    void Restore_Toolbar();

    std::array<QWidget*, WizardSteps.size()> PagesPicBox{};
    std::array<QLabel*, WizardSteps.size()> Label3{};
    std::array<QRadioButton*, 4> Option1{}; // places of the toolbar
    std::array<QRadioButton*, 2> Option2{}; // hide modes
    std::array<wbButton*, 2> wbButton3{};   // back, and forward
    ChkBox* Check1 = nullptr;
    ChkBox* Check2 = nullptr;
    QLineEdit* Text1 = nullptr;
    wbButton* TestHideButton = nullptr;
    int currentPage = 0;
    QPoint remembered; // of the toolbar, pixels
    bool finishing = false;
    HideTest hideTest;
};
