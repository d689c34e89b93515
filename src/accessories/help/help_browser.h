// A page of the help folder, with its pictures and links. Nothing from elsewhere is ever read.
#pragma once

#include <QImage>
#include <QTextBrowser>
#include <QUrl>

#include <map>

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
    // With Ctrl it changes the size of the text.
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;

private:
    QString Missing_Page(const QString& fileName) const;

    QImage Fitted(const QImage& picture) const;

    QString folder;
    std::map<QUrl, QImage> pictures; // of the page, as they were taken
};
