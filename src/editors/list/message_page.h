// "Message": what the reminder says, how it is displayed, and its four buttons.
#pragma once

#include "controls/chk_box.h"
#include "controls/text_fields.h"
#include "core/reminder.h"
#include "editors/list/click_label.h"

#include <QWidget>

#include <array>

class QButtonGroup;
class QLineEdit;
class QRadioButton;
class wbButton;

enum class TitlesOfFunctions { Keep, Update };

class MessagePage : public QWidget {
    Q_OBJECT
public:
    explicit MessagePage(QWidget* parent);

    // The examples that a reminder without these settings shows.
    void Clear_View();
    void Load_View(const ReminderClass& reminder);
    void Save_View(ReminderClass& reminder);
    // The four functions; Keep leaves the titles that are being typed.
    void UpdateFunctions(const ReminderClass& wOBJ, TitlesOfFunctions titles);
    // Without telling.
    void Set_Text(const QString& text);
    // Selects a text that only stands for one to be typed.
    static void Select_SampleText(QPlainTextEdit* box);

    static constexpr int DisplayModes = 3;
    static constexpr int MinimizeBox = 4;
    QLineEdit* Text9 = nullptr;
    MemoField* Text8 = nullptr;
    std::array<QRadioButton*, DisplayModes> Option2{};
    std::array<ChkBox*, MinimizeBox + 1> p6ChkImage{};
    std::array<QLineEdit*, ReminderClass::FunctionCount> Text10{};
    std::array<ClickLabel*, ReminderClass::FunctionCount> Label32{};
    std::array<wbButton*, ReminderClass::FunctionCount> wbButton3{};

Q_SIGNALS:
    void Title_Changed(const QString& title);
    void Text_Changed(const QString& text);
    void Function_Enable_Changed(int k);
    void Edit_Function(int k);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Build_Text();
    void Build_DisplayMode();
    void Build_Function(int k);
    void Option2_Click(int i);
    void Set_FunctionText(int k, const QString& text);
    void Text9_LostFocus(Qt::FocusReason reason);

    QButtonGroup* modes = nullptr;
    // As the boxes show the record's, which may hold what no box can show.
    QString shownTitle;
    std::array<QString, ReminderClass::FunctionCount> shownCaptions;
    bool showing = false; // by the program: not an edit
};
