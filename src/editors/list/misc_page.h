// "Misc": the category and the icon of the reminder, and what is done to categories themselves.
#pragma once

#include "editors/list/icon_palette.h"
#include "editors/pages/reminder_page.h"

#include <QStringList>

class ComboBox;

class MiscPage : public ReminderPage {
    Q_OBJECT
public:
    MiscPage(EditHost& editHost, QWidget* parent);

    void Load(const ReminderClass& reminder) override;
    QString Store(ReminderClass& reminder) override;
    // What the box offers; its text stays.
    void Set_Categories(const QStringList& names);
    // Of the chosen icon; empty: none.
    QString Icon_Name() const { return icons->Selected_Name().trimmed(); }

Q_SIGNALS:
    // By the user, not stored yet.
    void Icon_Chosen(const QString& name);
    // The table of categories has changed, or the icons of reminders have.
    void Category_Deleted();
    void Icons_Changed();

private:
    void Show_Category(const ReminderClass* reminder);
    void Set_CategoryText(const QString& text);
    void Choose_Icon(const QString& name);
    void Category_Chosen(const QString& name);
    void Delete_Click();
    void UseIcon_Click();

    EditHost& host;
    ComboBox* category = nullptr;
    IconPalette* icons = nullptr;
};
