// A page of the help folder, with its pictures and links. Nothing from elsewhere is ever read.
#pragma once

#include <QTextBrowser>

class HelpBrowser : public QTextBrowser {
    Q_OBJECT
public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    // The folder whose pages are shown.
    void Set_Folder(const QString& helpFolder) { folder = helpFolder; }
    // Says so, with a way back, when the folder has no such page.
    void Show_Page(const QString& path);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;

private:
    QString Missing_Page(const QString& fileName) const;

    QString folder;
};
