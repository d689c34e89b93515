#include "accessories/help/frm_html_view.h"

#include "accessories/help/help.h"
#include "accessories/help/help_browser.h"
#include "accessories/help/help_rules.h"
#include "controls/chk_box.h"
#include "controls/help_topic.h"
#include "controls/the_screen.h"
#include "platform/window.h"

#include <QEvent>
#include <QFileInfo>
#include <QStyle>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int DesignWidth = 293;
constexpr int DesignHeight = 437;
constexpr int LookInterval = 200; // ms between two looks at the toolbar's place
constexpr int AskedTime = 2000;   // ms that the focus may take to get here
constexpr int BelowBrowser = 20;
constexpr int CheckHeight = 16;
constexpr int CheckPastRight = 4; // the box is wider than its text, and ends outside the window

} // namespace

frmHTMLview::frmHTMLview() : Form(nullptr, Qt::Tool) {
    setWindowTitle(u"Help"_s);
    Set_HelpTopic(*this, help_page::Contents);
    WebBrowser1 = new HelpBrowser(this);
    Check1 = new ChkBox(u"Auto Update topic"_s, 0, 0, this);
    Check1->setToolTip(u"Show the page of the window that you are working in"_s);
    Check1->Set_Ticked(true);
    Check1->resize(Check1->width() + 2 * CheckPastRight, CheckHeight);
    connect(Check1, &ChkBox::Checked, this, [] { Global_HelpAutoUpdate = true; });
    connect(Check1, &ChkBox::Unchecked, this, [] { Global_HelpAutoUpdate = false; });
    Timer1.setInterval(LookInterval);
    connect(&Timer1, &QTimer::timeout, this, &frmHTMLview::Timer1_Tick);
    WebBrowser1->setFocus();
    resize(DesignWidth, DesignHeight);
    Global_HelpLoaded = true;
    Global_HelpAutoUpdate = Check1->Is_Ticked();
}

void frmHTMLview::SetHTMLFile(const QString& path) {
    WebBrowser1->Set_Folder(Help_Folder());
    WebBrowser1->Show_Page(path);
}

QString frmHTMLview::HTMLFile() const {
    return WebBrowser1->source().toLocalFile();
}

void frmHTMLview::Ask_For(const QString& path) {
    asked = isActiveWindow() ? QString() : path;
    QTimer::singleShot(AskedTime, this, [this] { asked.clear(); });
    SetHTMLFile(path);
}

void frmHTMLview::changeEvent(QEvent* event) {
    Form::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || asked.isEmpty())
        return;
    const QString path = std::exchange(asked, QString());
    if (path != HTMLFile())
        SetHTMLFile(path);
}

void frmHTMLview::SetHelpPos() {
    const ToolbarRect toolbar = Global_Toolbar->Bounds();
    LastMainLeft = toolbar.Left;
    LastMainTop = toolbar.Top;
    // The window manager's frame is known only once it is there.
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    const QSize frame = isVisible() ? frameGeometry().size() : size() + QSize(0, title);
    move(Help_Place(toolbar, frame, The_Screen()));
}

void frmHTMLview::EnableTimer() {
    Timer1.start();
}

void frmHTMLview::Timer1_Tick() {
    const ToolbarRect toolbar = Global_Toolbar->Bounds();
    if (toolbar.Left != LastMainLeft || toolbar.Top != LastMainTop)
        SetHelpPos();
}

void frmHTMLview::On_Unload() {
    Timer1.stop();
    Global_HelpLoaded = false;
}

void frmHTMLview::resizeEvent(QResizeEvent*) {
    if (isMinimized())
        return;
    WebBrowser1->setGeometry(0, 0, width(), height() - BelowBrowser);
    Check1->move(width() - (Check1->width() - CheckPastRight), height() - CheckHeight);
}

void frmHTMLview::showEvent(QShowEvent* event) {
    platform::Windows::Get().Leave_TaskBar(winId());
    Form::showEvent(event);
}
