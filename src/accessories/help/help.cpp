#include "accessories/help/help.h"

#include "accessories/help/frm_html_view.h"
#include "controls/program_end.h"
#include "platform/paths.h"

#include <QFileInfo>
#include <QPointer>

using namespace Qt::StringLiterals;

bool Global_HelpLoaded = false;
bool Global_HelpAutoUpdate = false;

namespace {

QPointer<frmHTMLview> viewer;

QString Page_Path(const QString& page) {
    return Help_Folder() + u'/' + page;
}

} // namespace

QString Help_Folder() {
    return QFileInfo(platform::Paths::Get().Shipped_File(u"help/contents.html"_s)).path();
}

void Update_HelpTopic(const QString& page) {
    if (!Global_HelpLoaded || !Global_HelpAutoUpdate || viewer == nullptr)
        return;
    // The page on view keeps the place that was read.
    if (viewer->HTMLFile() != Page_Path(page))
        viewer->SetHTMLFile(Page_Path(page));
}

void Show_HelpPage(const QString& page) {
    if (Program_Is_Ending())
        return;
    if (viewer == nullptr || viewer->Is_Unloading())
        viewer = new frmHTMLview;
    viewer->Ask_For(Page_Path(page));
    viewer->SetHelpPos();
    viewer->EnableTimer();
    viewer->Present();
}
