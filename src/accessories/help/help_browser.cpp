#include "accessories/help/help_browser.h"

#include "accessories/help/help_rules.h"
#include "controls/form.h"
#include "platform/files.h"
#include "platform/shell.h"

#include <QFileInfo>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int PageMargin = 8;
constexpr int ListIndent = 16;
constexpr int SmallestText = 8; // pixels
constexpr int LargestText = 32;

QByteArray Read_HelpFile(const QString& path) {
    const auto content = path.isEmpty() ? std::nullopt : platform::Files::Get().Read(path);
    return content ? QByteArray::fromStdString(*content) : QByteArray();
}

// The toolkit looks for a picture that it did not get by its bare name, anywhere on the disk: so
// it gets an empty one.
QImage Picture_Of(const QByteArray& bytes) {
    QImage picture;
    if (!picture.loadFromData(bytes)) {
        picture = QImage(1, 1, QImage::Format_ARGB32);
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
    else if (Is_HelpAddress(folder, url)) {
        pictures.clear();
        QTextBrowser::doSetSource(url, type);
    }
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
    const int turn = event->angleDelta().y();
    if (!event->modifiers().testFlag(Qt::ControlModifier) || turn == 0) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    QFont text = font();
    text.setPixelSize(
        std::clamp(text.pixelSize() + (turn > 0 ? 1 : -1), SmallestText, LargestText));
    setFont(text);
    event->accept();
}

// The toolkit scales pictures by leaving out pixels, which takes letters to pieces.
QImage HelpBrowser::Fitted(const QImage& picture) const {
    const int room = width() - verticalScrollBar()->sizeHint().width() - 2 * PageMargin;
    if (picture.width() <= room || room < 1)
        return picture;
    QImage fitted =
        picture.scaledToWidth(qRound(room * devicePixelRatioF()), Qt::SmoothTransformation);
    fitted.setDevicePixelRatio(devicePixelRatioF());
    return fitted;
}

void HelpBrowser::resizeEvent(QResizeEvent* event) {
    for (const auto& [url, picture] : pictures)
        document()->addResource(QTextDocument::ImageResource, url, Fitted(picture));
    if (!pictures.empty())
        document()->markContentsDirty(0, document()->characterCount());
    QTextBrowser::resizeEvent(event);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    const QUrl url = source().isEmpty() ? name : source().resolved(name);
    const QString file = Help_File(folder, url);
    if (type == QTextDocument::ImageResource)
        return Fitted(pictures[url] = Picture_Of(Read_HelpFile(file)));
    if (type == QTextDocument::HtmlResource && !Is_HelpPage(folder, url))
        return Missing_Page(url.fileName());
    return QString::fromUtf8(Read_HelpFile(file));
}
