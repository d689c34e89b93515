// What stands on the wizard's pages, and where.
#include "accessories/setup/frm_wizard.h"
#include "controls/chk_box.h"
#include "controls/click_filter.h"
#include "controls/help_topic.h"
#include "controls/metrics.h"
#include "controls/the_screen.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int FormWidth = 480;
constexpr int FormHeight = 320;
constexpr int BannerHeight = 36;
constexpr int Margin = 8;
constexpr int StepsWidth = 128;
constexpr int StepHeight = 20;
constexpr int PageLeft = Margin + StepsWidth + 14;
constexpr int PageTop = BannerHeight + 12;
constexpr int PageWidth = FormWidth - PageLeft - Margin;
constexpr int FooterTop = FormHeight - 40;
constexpr int PageHeight = FooterTop - PageTop - 4;
constexpr int ButtonWidth = 84;
constexpr int ButtonHeight = 24;
constexpr int Indent = 20;
constexpr int PictureLeft = PageWidth - 20;
constexpr int TextWidth = PictureLeft - 8;
constexpr int LongestFormat = 64;

// The places of the longer help texts.
enum WizardTip { AutoHideTip = 70, ModeTip, PlaceTip, FormatTip, StartTip };

QLabel* Bold(QLabel* label) {
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->adjustSize();
    return label;
}

void Add_Line(QWidget* form, const QRect& place, QFrame::Shape shape) {
    auto* line = new QFrame(form);
    line->setFrameShape(shape);
    line->setFrameShadow(QFrame::Plain);
    QPalette colors = line->palette();
    colors.setColor(QPalette::WindowText, palette::To_Color(palette::Outline));
    line->setPalette(colors);
    line->setGeometry(place);
}

} // namespace

void frmWizard::Add_Frame() {
    setFixedSize(FormWidth, FormHeight);
    move(Centered_In(The_Screen(), size()));
    auto* banner = new QWidget(this);
    banner->setGeometry(0, 0, FormWidth, BannerHeight);
    banner->setAutoFillBackground(true);
    banner->setPalette(Form_Palette(palette::White));
    Bold(Add_Label(u"The wizard will help you setup Tockly"_s, 12, 12, 0, banner));
    Add_Line(this, {0, BannerHeight, FormWidth, 1}, QFrame::HLine);
    Add_Line(this, {PageLeft - 8, PageTop - 4, 1, FooterTop - PageTop - 2}, QFrame::VLine);
    Add_Line(this, {0, FooterTop, FormWidth, 1}, QFrame::HLine);
}

void frmWizard::Add_Steps() {
    Bold(Add_Label(u"Steps:"_s, Margin, PageTop));
    void (frmWizard::*const fill[])(QWidget*) = {
        &frmWizard::Add_Welcome,    &frmWizard::Add_AutoHide, &frmWizard::Add_Position,
        &frmWizard::Add_DateFormat, &frmWizard::Add_StartUp,  &frmWizard::Add_Finish};
    for (std::size_t i = 0; i < PagesPicBox.size(); ++i) {
        const QString tag = QString::fromUtf16(WizardSteps[i].Tag);
        const int row = static_cast<int>(i);
        Label3[i] = Add_Label(QString::number(row + 1) + u"- "_s + Step_Name(tag), Margin + 4,
                              PageTop + 22 + row * StepHeight);
        PagesPicBox[i] = new QWidget(this);
        PagesPicBox[i]->setGeometry(PageLeft, PageTop, PageWidth, PageHeight);
        PagesPicBox[i]->setAccessibleName(Step_Name(tag));
        PagesPicBox[i]->hide();
        const auto Fill_Page = fill[i];
        (this->*Fill_Page)(PagesPicBox[i]);
    }
}

void frmWizard::Add_Buttons() {
    Add_Label(help_page::Hint, Margin, FooterTop + 14);
    for (std::size_t i = 0; i < wbButton3.size(); ++i) {
        const int fromRight = i == 0 ? 2 * ButtonWidth + 6 : ButtonWidth;
        wbButton3[i] = new wbButton(this);
        wbButton3[i]->setGeometry(FormWidth - Margin - fromRight, FooterTop + 8, ButtonWidth,
                                  ButtonHeight);
    }
    wbButton3[0]->Set_Caption(u"< Previous"_s);
    wbButton3[1]->Set_Caption(u"Next >"_s);
    connect(wbButton3[0], &wbButton::Click, this, [this] { Show_Page(currentPage - 1); });
    connect(wbButton3[1], &wbButton::Click, this, &frmWizard::Next_Click);
    wbButton3[1]->setFocus();
}

QRadioButton* frmWizard::Add_Option(const QString& text, int top, QWidget* page) {
    auto* option = new QRadioButton(text, page);
    option->setFont(Small_Font());
    option->move(0, top);
    option->adjustSize();
    return option;
}

void frmWizard::Add_OptionLabel(const QString& text, int top, int width, QWidget* page,
                                QRadioButton* option) {
    new ClickFilter(Add_Label(text, Indent, top, width, page), option);
    option->setAccessibleDescription(option->accessibleDescription() + text + u' ');
}

void frmWizard::Add_Welcome(QWidget* page) {
    Bold(Add_Label(u"Welcome to the setup wizard !"_s, 0, 0, 0, page));
    Add_Label(u"The wizard will help you setup Tockly. Click \"Next\" to continue."_s, 0, 22,
              PageWidth, page);
}

void frmWizard::Add_AutoHide(QWidget* page) {
    Bold(Add_Label(u"Autohide:"_s, 0, 0, 0, page));
    Add_Label(u"\"Autohide\" will automatically hide the toolbar when is not used."_s, 0, 18,
              TextWidth, page);
    Check1 = new ChkBox(u"Enable AutoHide"_s, 0, 48, page);
    new TooltipPicture(AutoHideTip, PictureLeft, 48, page);
    Bold(Add_Label(u"Hide mode:"_s, 0, 76, 0, page));
    new TooltipPicture(ModeTip, PictureLeft, 74, page);
    Option2[0] = Add_Option(u"System tray:"_s, 94, page);
    Add_OptionLabel(u"When the toolbar hides, a tray icon will appear."_s, 114, 0, page,
                    Option2[0]);
    Add_OptionLabel(u"Click the tray icon to show the toolbar."_s, 128, 0, page, Option2[0]);
    Option2[1] = Add_Option(u"Shrink:"_s, 146, page);
    Add_OptionLabel(u"The toolbar will shrink on the same location, clicking on it will set it "
                    "back to its normal size."_s,
                    166, TextWidth - Indent, page, Option2[1]);
    TestHideButton = new wbButton(page);
    TestHideButton->setGeometry(PageWidth - 64, 202, 64, 22);
    TestHideButton->Set_Caption(u"Test"_s);
    TestHideButton->Set_ToolTipTextLabel(u"Hide the toolbar for a moment"_s);
    connect(TestHideButton, &wbButton::Click, this, &frmWizard::TestHideButton_Click);
}

void frmWizard::Add_Position(QWidget* page) {
    Bold(Add_Label(u"Select the toolbar location:"_s, 0, 0, 0, page));
    new TooltipPicture(PlaceTip, PictureLeft, 0, page);
    const char16_t* const captions[] = {u"Top-left", u"Top-center", u"Top-right", u"Manual:"};
    for (std::size_t i = 0; i < Option1.size(); ++i) {
        const int index = static_cast<int>(i);
        Option1[i] = Add_Option(QString::fromUtf16(captions[i]), 24 + index * 24, page);
        connect(Option1[i], &QRadioButton::clicked, this, [this, index] { Option1_Click(index); });
    }
    Add_Label(u"You can move the toolbar by holding down the left mouse button over it, and "
              "moving the cursor."_s,
              Indent, 120, TextWidth - Indent, page);
}

void frmWizard::Add_DateFormat(QWidget* page) {
    const QString prompt = u"Please insert the date format used to display dates:"_s;
    Add_Label(prompt, 0, 0, 0, page);
    Text1 = new QLineEdit(page);
    Text1->setFont(Small_Font());
    Text1->setGeometry(0, 22, 140, 20);
    Text1->setMaxLength(LongestFormat);
    Text1->setPlaceholderText(u"dd/mm/yyyy"_s);
    Text1->setAccessibleName(prompt);
    connect(Text1, &QLineEdit::returnPressed, this, &frmWizard::Next_Click);
    new TooltipPicture(FormatTip, 148, 24, page);
    const char16_t* const fields[] = {u"dd = Day", u"mm = Month", u"yy = Year (short)",
                                      u"yyyy = Year (Large)"};
    int top = 54;
    for (const char16_t* field : fields) {
        Add_Label(QString::fromUtf16(field), Indent, top, 0, page);
        top += 18;
    }
}

void frmWizard::Add_StartUp(QWidget* page) {
    Check2 = new ChkBox(u"Load Tockly on startup"_s, 0, 0, page);
    new TooltipPicture(StartTip, PictureLeft, 0, page);
    Add_Label(u"It is recommended to load Tockly during the windows start up to make sure you get "
              "the reminders on time."_s,
              Indent, 22, TextWidth - Indent, page);
}

void frmWizard::Add_Finish(QWidget* page) {
    Add_Label(u"You have completed the wizard, click the finish button to close this window and "
              "save the new settings."_s,
              0, 0, PageWidth, page);
}
