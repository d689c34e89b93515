// What one of a reminder's four function buttons does, and how the window it opens starts.
#pragma once

#include "controls/form.h"
#include "core/reminder_ref.h"
#include "editors/list/function_rules.h"

#include <array>

class ChkBox;
class QLineEdit;

class frmRE_FunctionEdit : public Form {
    Q_OBJECT
public:
    explicit frmRE_FunctionEdit(QWidget* owner);

    // Set by the caller before UpdateView.
    ReminderRef wOBJ;
    int Index = 0; // of the function, 0..3

    void UpdateView();

    std::array<ChkBox*, FunctionBoxCount> p0ChkImage{};
    std::array<QLineEdit*, FirstSizeBox> Text10{};

Q_SIGNALS:
    // The record has the new function.
    void Function_Changed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Build_Fields();
    FunctionBoxes Boxes() const;
    void Set_Boxes(const FunctionBoxes& boxes);
    void Tick(int box);
    void wbButton1_Click(); // Ok
    void wbButton3_Click(); // choose a file
};
