// Shows the program's own controls in all their states, to be looked at, and quick add, which no
// button of the program opens.
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/program_look.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "core/categories.h"
#include "core/date_text.h"
#include "core/reminder_store.h"
#include "delivery/deliver.h"
#include "editors/wizard/frm_quick_add_reminder.h"
#include "platform/paths.h"
#include "platform/system.h"

#include <QApplication>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowHeight = 30;

class Showcase : public QWidget {
public:
    Showcase() {
        setWindowTitle(u"Controls"_s);
        resize(430, 230);
        QPalette colors = palette();
        colors.setColor(QPalette::Window, palette::To_Color(palette::Toolbar_Back));
        setPalette(colors);
        Add(u"At rest, and taking no input"_s, [](wbButton& b) { b.Set_Caption(u"My Links"_s); });
        Add(u"A caption too long for its place"_s,
            [](wbButton& b) { b.Set_Caption(u"Open the page of the town library"_s); });
        Add(u"Mouse over: caption and border light up"_s, [](wbButton& b) {
            b.Set_Caption(u"Hover"_s);
            b.HMouseover = true;
            b.Set_BackColor(0x806040);
            b.Set_ForeColor(0xE0E0E0);
        });
        Add(u"The system's face"_s, [](wbButton& b) {
            b.Set_Caption(u"Standard"_s);
            b.Set_Style(ButtonStyle::System);
        });
        Add(u"Picture, centred"_s, [](wbButton& b) {
            b.Set_Caption({});
            b.Set_Picture(Load_Icon(IconName::ViewReminders), Icon_Size(IconName::ViewReminders));
            b.Set_CenterImage(true);
        });
        Add(u"Picture beside a caption"_s, [](wbButton& b) {
            b.Set_Caption(u"Notes"_s);
            b.Set_Picture(Load_Icon(IconName::ViewNotes), Icon_Size(IconName::ViewNotes));
            b.Set_ImageLEFT(6);
            b.Set_ImageTOP(3);
        });
        Add(u"Lines and shapes"_s, [](wbButton& b) {
            b.Set_Caption({});
            b.DRAWShape(3, 10, 11, 11);
            b.DRAWLine(10, 8, 21, 8);
            b.DRAWLine(30, 3, 40, 13);
        });
    }

private:
    template <class Setup>
    void Add(const QString& text, const Setup& setup) {
        const int top = 12 + row * RowHeight;
        auto* label = new QLabel(text, this);
        label->setFont(Small_Font());
        label->setGeometry(12, top, 195, 17);
        for (const bool enabled : {true, false}) {
            auto* button = new wbButton(this);
            button->setGeometry(enabled ? 210 : 320, top, 97, 17);
            setup(*button);
            button->setEnabled(enabled);
        }
        ++row;
    }

    int row = 0;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    Set_ProgramLook();
    platform::Provide_Base_Services();
    platform::Provide_Window_Services();
    Init_TimeRoutines();
    Init_DateText();
    Init_Reminders();
    Init_Categories();
    Init_MessageWinRoutines();
    Load_Tooltips(platform::Paths::Get().Shipped_File(u"tooltips.txt"_s));
    Showcase window;
    window.show();
    Show_QuickAdd();
    const int result = QApplication::exec();
    Release_Forms();
    return result;
}
