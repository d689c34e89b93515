#include "editors/list/sound_page.h"

#include "controls/chk_box.h"
#include "controls/metrics.h"
#include "controls/page_parts.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "editors/list/open_file.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"

#include <QLineEdit>

#include <limits>

using namespace Qt::StringLiterals;

namespace {
constexpr int Tip_Sound = 24;
} // namespace

SoundPage::SoundPage(QWidget* parent) : ReminderPage(parent) {
    setFont(Small_Font());
    Add_Text(this, u"Sound:"_s, 8, 12, TextLook::Heading);
    new TooltipPicture(Tip_Sound, 444, 11, this);
    play = new ChkBox(u"Play a sound file when the reminder is shown"_s, 20, 36, this);
    beep = new ChkBox(u"Window's beep"_s, 20, 62, this);
    path = new QLineEdit(this);
    path->setGeometry(20, 90, 380, 22);
    path->setMaxLength(std::numeric_limits<int>::max());
    path->setAccessibleName(u"Sound file"_s);
    wbButton* browse = Add_Button(this, u"..."_s, {404, 89, 32, 24}, u"Choose a sound file"_s);
    wbButton* listen = Add_Button(this, u"Play"_s, {20, 122, 72, 24});
    for (const auto change : {&ChkBox::Checked, &ChkBox::Unchecked})
        connect(beep, change, this, [this] { path->setEnabled(!beep->Is_Ticked()); });
    connect(browse, &wbButton::Click, this, &SoundPage::Browse_Click);
    connect(listen, &wbButton::Click, this, &SoundPage::Play_Click);
}

void SoundPage::Load(const ReminderClass& reminder) {
    const bool beeps = reminder.rs_SoundPath.isEmpty();
    play->Set_Ticked(reminder.rs_PlaySound);
    beep->Set_Ticked(beeps);
    path->setEnabled(!beeps);
    path->setText(beeps ? u"c:\\sounds\\alarm.mp3"_s : reminder.rs_SoundPath);
    shownPath = path->text();
}

QString SoundPage::Store(ReminderClass& reminder) {
    reminder.rs_PlaySound = play->Is_Ticked();
    if (beep->Is_Ticked())
        reminder.rs_SoundPath.clear();
    else if (reminder.rs_SoundPath.isEmpty() || path->text() != shownPath)
        reminder.rs_SoundPath = path->text();
    shownPath = path->text();
    return {};
}

void SoundPage::Browse_Click() {
    Choose_File(this,
                {{u"MP3 File (*.mp3)"_s, u".mp3"_s},
                 {u"WAV File (*.wav)"_s, u".wav"_s},
                 {u"All Files (*.*)"_s, {}}},
                [this](const QString& chosen) {
                    path->setText(chosen);
                    beep->Set_Ticked(false);
                    path->setEnabled(true);
                });
}

void SoundPage::Play_Click() {
    if (beep->Is_Ticked()) {
        platform::Desktop::Get().Beep();
        return;
    }
    player = std::make_unique<MCIClass>();
    if (player->OpenAudioFile(path->text().trimmed()) == 0) {
        player->Play(0);
        return;
    }
    player.reset();
    platform::Dialogs::Get().Message(u"Invalid sound file"_s, platform::BoxStyle::Exclamation);
}
