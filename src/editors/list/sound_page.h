// "Sound": what is heard when the reminder is shown.
#pragma once

#include "controls/chk_box.h"
#include "core/reminder.h"
#include "delivery/mci_class.h"

#include <QWidget>

#include <array>
#include <memory>

class QLineEdit;

class SoundPage : public QWidget {
    Q_OBJECT
public:
    explicit SoundPage(QWidget* parent);

    void Clear_View();
    void Load_View(const ReminderClass& reminder);
    void Save_View(ReminderClass& reminder);
    // Releases the player.
    void Stop_Sound() { player.reset(); }

    QLineEdit* Text11 = nullptr;
    // 0 "Play a sound file when the reminder is shown", 1 "Window's beep".
    std::array<ChkBox*, 2> p7ChkImage{};

private:
    void Sound_Option_Checked(int k);
    void wbButton7_Click(); // browse
    void wbButton4_Click(); // play

    std::unique_ptr<MCIClass> player;
    QString shownPath; // as the box shows the record's
};
