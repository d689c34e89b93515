#include "accessories/help/help.h"

#include "accessories/help/frm_html_view.h"
#include "controls/one_window.h"
#include "platform/paths.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

bool Global_HelpLoaded = false;
bool Global_HelpAutoUpdate = false;

namespace {

OneWindow<frmHTMLview> viewer;

QString Page_Path(const QString& page) {
    return Help_Folder() + u'/' + page;
}

} // namespace

QString Help_Folder() {
    return QFileInfo(platform::Paths::Get().Shipped_File(u"help/contents.html"_s)).path();
}

void Update_HelpTopic(const QString& page) {
    frmHTMLview* window = viewer.Open();
    if (window == nullptr || !Global_HelpAutoUpdate)
        return;
    // The page on view keeps the place that was read.
    if (window->HTMLFile() != Page_Path(page))
        window->SetHTMLFile(Page_Path(page));
}

void Show_HelpPage(const QString& page) {
    frmHTMLview* window = viewer.Open_OrMake();
    if (window == nullptr)
        return;
    window->Ask_For(Page_Path(page));
    window->SetHelpPos();
    window->EnableTimer();
    window->Present();
}
