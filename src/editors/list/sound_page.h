// "Sound": what is heard when the reminder is shown.
#pragma once

#include "delivery/mci_class.h"
#include "editors/pages/reminder_page.h"

#include <memory>

class ChkBox;
class QLineEdit;

class SoundPage : public ReminderPage {
    Q_OBJECT
public:
    explicit SoundPage(QWidget* parent);

    void Load(const ReminderClass& reminder) override;
    QString Store(ReminderClass& reminder) override;
    // Releases the player.
    void Stop_Sound() { player.reset(); }

private:
    void Browse_Click();
    void Play_Click();

    ChkBox* play = nullptr;
    ChkBox* beep = nullptr;
    QLineEdit* path = nullptr;
    QString shownPath; // as the box shows the record's
    std::unique_ptr<MCIClass> player;
};
