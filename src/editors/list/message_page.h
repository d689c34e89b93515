// "Message": what the reminder says, how it is displayed, and its four buttons.
#pragma once

#include "editors/pages/reminder_page.h"

#include <array>

class ChkBox;
class ClickLabel;
class MemoField;
class QButtonGroup;
class QLineEdit;

class MessagePage : public ReminderPage {
    Q_OBJECT
public:
    explicit MessagePage(QWidget* parent);

    void Load(const ReminderClass& reminder) override;
    QString Store(ReminderClass& reminder) override;
    // The four functions without their captions, which may be being typed.
    void Show_Functions(const ReminderClass& reminder);
    // Without telling.
    void Set_Text(const QString& text);

Q_SIGNALS:
    // By the user.
    void Title_Changed(const QString& title);
    void Text_Changed(const QString& text);
    void Function_Enabled(int k, bool on);
    void Edit_Function(int k);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Build_Text();
    void Build_DisplayMode();
    void Build_Function(std::size_t k);
    void Mode_Chosen(int mode);
    void Title_Left(Qt::FocusReason reason);

    QLineEdit* title = nullptr;
    MemoField* text = nullptr;
    QButtonGroup* modes = nullptr;
    ChkBox* minimize = nullptr;
    struct FunctionRow {
        ChkBox* Enabled = nullptr;
        QLineEdit* Caption = nullptr;
        ClickLabel* Function = nullptr;
        QString ShownCaption; // as the field shows the record's, which may hold what no field can
    };
    std::array<FunctionRow, ReminderClass::FunctionCount> functions;
    QString shownTitle;
    bool showing = false; // by the program: not an edit
};
