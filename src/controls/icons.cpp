#include "controls/icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

// A resource of a static library has to be asked for, from outside any namespace.
static void Init_Pictures() {
    Q_INIT_RESOURCE(controls);
}

using namespace Qt::StringLiterals;

namespace {

constexpr double DisabledOpacity = 0.4;

QString File_Of(IconName name) {
    switch (name) {
    case IconName::AddReminder:
        return u":/icons/add_reminder.svg"_s;
    case IconName::ViewReminders:
        return u":/icons/view_reminders.svg"_s;
    case IconName::ViewNotes:
        return u":/icons/view_notes.svg"_s;
    case IconName::OpenTextbox:
        return u":/icons/open_textbox.svg"_s;
    case IconName::Program:
        break;
    }
    return u":/icons/program.svg"_s;
}

// Draws the file anew for every size asked for, so that no scaled pixels are ever seen.
class PictureEngine : public QIconEngine {
public:
    explicit PictureEngine(const QString& pictureFile) : file(pictureFile) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        if (mode == QIcon::Disabled) {
            painter->setOpacity(painter->opacity() * DisabledOpacity);
        }
        QSvgRenderer(file).render(painter, rect);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new PictureEngine(file); }

private:
    QString file;
};

} // namespace

QIcon Load_Icon(IconName name) {
    Init_Pictures();
    return QIcon(new PictureEngine(File_Of(name)));
}

QSize Icon_Size(IconName name) {
    return name == IconName::Program ? QSize(48, 48) : QSize(13, 11);
}
