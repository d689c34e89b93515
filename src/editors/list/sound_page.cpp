#include "editors/list/sound_page.h"

#include "controls/metrics.h"
#include "controls/program_end.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "editors/list/open_file.h"
#include "editors/list/page_labels.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"

#include <QLineEdit>

#include <limits>

using namespace Qt::StringLiterals;

namespace {
constexpr int Tip_Sound = 24;
enum SoundBox { PlayBox = 0, BeepBox = 1 };
} // namespace

SoundPage::SoundPage(QWidget* parent) : QWidget(parent) {
    setFont(Small_Font());
    Add_Heading(u"Sound:"_s, 8, 12, this);
    new TooltipPicture(Tip_Sound, 444, 11, this);
    p7ChkImage[PlayBox] =
        new ChkBox(u"Play a sound file when the reminder is shown"_s, 20, 36, this);
    p7ChkImage[BeepBox] = new ChkBox(u"Window's beep"_s, 20, 62, this);
    Text11 = new QLineEdit(this);
    Text11->setGeometry(20, 90, 380, 22);
    Text11->setMaxLength(std::numeric_limits<int>::max());
    Text11->setAccessibleName(u"Sound file"_s);
    auto* wbButton7 = new wbButton(this);
    wbButton7->setGeometry(404, 89, 32, 24);
    wbButton7->Set_Caption(u"..."_s);
    wbButton7->setAccessibleName(u"Choose a sound file"_s);
    auto* wbButton4 = new wbButton(this);
    wbButton4->setGeometry(20, 122, 72, 24);
    wbButton4->Set_Caption(u"Play"_s);
    for (int k = 0; k < 2; ++k)
        for (const auto change : {&ChkBox::Checked, &ChkBox::Unchecked})
            connect(p7ChkImage[static_cast<std::size_t>(k)], change, this,
                    [this, k] { Sound_Option_Checked(k); });
    connect(wbButton7, &wbButton::Click, this, &SoundPage::wbButton7_Click);
    connect(wbButton4, &wbButton::Click, this, &SoundPage::wbButton4_Click);
}

void SoundPage::Clear_View() {
    for (ChkBox* box : p7ChkImage)
        box->Set_Ticked(false);
    Text11->setText(u"c:\\sounds\\alarm.mp3"_s);
    Text11->setEnabled(false);
}

void SoundPage::Load_View(const ReminderClass& reminder) {
    const bool beep = reminder.rs_SoundPath.isEmpty();
    p7ChkImage[PlayBox]->Set_Ticked(reminder.rs_PlaySound);
    p7ChkImage[BeepBox]->Set_Ticked(beep);
    Text11->setEnabled(!beep);
    if (!beep)
        Text11->setText(reminder.rs_SoundPath);
    shownPath = Text11->text();
}

void SoundPage::Save_View(ReminderClass& reminder) {
    reminder.rs_PlaySound = p7ChkImage[PlayBox]->Is_Ticked();
    if (p7ChkImage[BeepBox]->Is_Ticked())
        reminder.rs_SoundPath.clear();
    else if (reminder.rs_SoundPath.isEmpty() || Text11->text() != shownPath)
        reminder.rs_SoundPath = Text11->text();
    shownPath = Text11->text();
}

void SoundPage::Sound_Option_Checked(int k) {
    if (k == BeepBox)
        Text11->setEnabled(!p7ChkImage[BeepBox]->Is_Ticked());
}

void SoundPage::wbButton7_Click() {
    Choose_File(this,
                {{u"MP3 File (*.mp3)"_s, u".mp3"_s},
                 {u"WAV File (*.wav)"_s, u".wav"_s},
                 {u"All Files (*.*)"_s, {}}},
                [this](const QString& path) {
                    Text11->setText(path);
                    p7ChkImage[BeepBox]->Set_Ticked(false);
                    Text11->setEnabled(true);
                });
}

void SoundPage::wbButton4_Click() {
    if (p7ChkImage[BeepBox]->Is_Ticked()) {
        platform::Desktop::Get().Beep();
        return;
    }
    player = std::make_unique<MCIClass>();
    if (player->OpenAudioFile(Text11->text().trimmed()) == 0) {
        player->Play(0);
        return;
    }
    player.reset();
    platform::Dialogs::Get().Message(u"Invalid sound file"_s, platform::BoxStyle::Exclamation);
}
