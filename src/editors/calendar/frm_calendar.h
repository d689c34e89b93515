// The date picker: one month as a grid of days. Hands back a date text in the user's format.
#pragma once

#include "controls/form.h"

#include <QString>

#include <cstdint>

class DayGrid;
class QComboBox;

class frmCalendar : public Form {
    Q_OBJECT
public:
    // Shows the present month. Where it stands is the caller's choice.
    explicit frmCalendar(QWidget* owner);

    // Fills the grid; Month 1..12, Year 2000..2099 (anything else: nothing changes). Takes the
    // selection off.
    void UpdateCalendar(int Month, int Year);
    // Shows a date, its day selected; day 0: the month alone.
    void Show_Date(int DayOfMonth, int Month, int Year);
    // The date of a text in the user's format, or the present month when it is none.
    void Show_DateText(const QString& text);
    // Shows it beside a window, or at a place; on the screen of the field that it fills, and clear
    // of it. Pixels of the screen.
    void Present_Beside(const QRect& anchor, const QWidget& field);
    void Present_At(const QPoint& place, const QWidget& field);

Q_SIGNALS:
    void DateSelected(const QString& NewDate);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QSize Framed_Size() const;
    void Build_Controls();
    void Fill_Boxes();
    void Combo_Changed();
    void Ok_Click();

    QComboBox* months = nullptr;
    QComboBox* years = nullptr;
    DayGrid* days = nullptr;
    std::int32_t shownYear = 0;
    std::int32_t shownMonth = 0;
};
