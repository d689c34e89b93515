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

    // number: of the function, 0..3.
    void Edit(const ReminderRef& ofReminder, int number);

Q_SIGNALS:
    // The record has the new function.
    void Function_Changed(const ReminderRef& reminder);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Build_Fields();
    FunctionBoxes Boxes() const;
    void Set_Boxes(const FunctionBoxes& boxes);
    void Tick(int box);
    void Ok_Click();
    void Browse_Click();

    ReminderRef reminder;
    int index = 0;
    std::array<ChkBox*, FunctionBoxCount> boxes{};
    std::array<QLineEdit*, FirstSizeBox> paths{};
};
