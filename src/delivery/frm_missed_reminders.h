// The list of missed reminders. A row that is double-clicked, or chosen with Enter, is delivered
// like a live reminder, and stays in the list.
#pragma once

#include "delivery/missed_reminders.h"

#include <QWidget>

#include <vector>

class QLabel;
class QListWidget;

class frmMissedReminders : public QWidget {
    Q_OBJECT
public:
    frmMissedReminders();

    void Fill_List(std::vector<MissedEntry> missed);
    // In front of those of the same day.
    void Add_Rows(std::vector<MissedEntry> missed);
    // By the list, beside the toolbar.
    void Place_Window();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Deliver_Row(int row);

    std::vector<MissedEntry> entries; // in the order of the list
    QListWidget* List1 = nullptr;
    QLabel* helpHint = nullptr;
    QLabel* Label1 = nullptr;
};
