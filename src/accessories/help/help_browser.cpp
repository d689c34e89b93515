#include "accessories/help/help_browser.h"

#include "accessories/help/help_rules.h"
#include "controls/form.h"
#include "platform/files.h"
#include "platform/shell.h"

#include <QFileInfo>
#include <QImage>

using namespace Qt::StringLiterals;

namespace {

constexpr int PageMargin = 8;
constexpr int ListIndent = 16;
constexpr int EmptyWidth = 250; // about that of the pages' pictures: stays flat when it is scaled

QByteArray Read_HelpFile(const QString& path) {
    const auto content = path.isEmpty() ? std::nullopt : platform::Files::Get().Read(path);
    return content ? QByteArray::fromStdString(*content) : QByteArray();
}

// The toolkit looks for a picture that it did not get by its bare name, anywhere on the disk: so
// it gets an empty one.
QImage Picture_Of(const QByteArray& bytes) {
    QImage picture;
    if (!picture.loadFromData(bytes)) {
        picture = QImage(EmptyWidth, 1, QImage::Format_ARGB32);
        picture.fill(Qt::transparent);
    }
    return picture;
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
    setAccessibleName(u"Help"_s);
    document()->setDocumentMargin(PageMargin);
    document()->setIndentWidth(ListIndent);
    setFrameShape(QFrame::NoFrame);
    setPalette(Form_Palette(palette::White));
    setOpenLinks(true);
}

void HelpBrowser::Show_Page(const QString& path) {
    const QUrl url = QUrl::fromLocalFile(path);
    // A name that leads out of the folder is looked for in it.
    setSource(Is_HelpAddress(folder, url)
                  ? url
                  : QUrl::fromLocalFile(folder + u'/' + QFileInfo(path).fileName()));
}

QString HelpBrowser::Missing_Page(const QString& fileName) const {
    const QUrl contents = QUrl::fromLocalFile(folder + u"/contents.html"_s);
    QString text = u"<h3>This page is not there</h3><p>The help page \"%1\" could not be "
                   "found.</p>"_s.arg(fileName.toHtmlEscaped());
    if (Is_HelpPage(folder, contents))
        text += u"<p><a href=\"%1\">Contents</a></p>"_s.arg(
            QString::fromLatin1(contents.toEncoded()).toHtmlEscaped());
    return text;
}

void HelpBrowser::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
    if (Is_WebLink(url))
        platform::Shell::Get().Open(QString::fromLatin1(url.toEncoded()),
                                    platform::ShowState::Normal);
    else if (Is_HelpAddress(folder, url))
        QTextBrowser::doSetSource(url, type);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    const QUrl url = source().isEmpty() ? name : source().resolved(name);
    const QString file = Help_File(folder, url);
    if (type == QTextDocument::ImageResource)
        return Picture_Of(Read_HelpFile(file));
    if (type == QTextDocument::HtmlResource && !Is_HelpPage(folder, url))
        return Missing_Page(url.fileName());
    return QString::fromUtf8(Read_HelpFile(file));
}
