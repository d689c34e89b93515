// The window of the help pages. It stands beside the toolbar and follows it.
#pragma once

#include "controls/form.h"
#include "controls/toolbar.h"

#include <QTimer>

class ChkBox;
class HelpBrowser;

class frmHTMLview : public Form {
    Q_OBJECT
public:
    frmHTMLview();

    // Turns to a page of the help folder; path: the whole path of the file.
    void SetHTMLFile(const QString& path);
    // The page on view.
    QString HTMLFile() const;
    // The same for a page that the user asks for: it is on view when the window has the focus,
    // whatever window gets it in between.
    void Ask_For(const QString& path);
    // Puts the window beside the toolbar.
    void SetHelpPos();
    // From now on the window follows the toolbar.
    void EnableTimer();

protected:
    void On_Unload() override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Timer1_Tick();

    HelpBrowser* WebBrowser1 = nullptr;
    ChkBox* Check1 = nullptr;
    QTimer Timer1;
    QString asked;        // empty once it has been seen
    int LastMainLeft = 0; // pixels
    int LastMainTop = 0;
};
