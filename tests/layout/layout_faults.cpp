#include "layout/layout_faults.h"

#include "controls/wb_button.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QComboBox>
#include <QFontMetricsF>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double Overhang = 1; // pixels; the fringe of a letter like T

struct PaintedText {
    QString Text;
    QRectF Ink;  // pixels of the widget
    QRectF Clip; // what the painter let through
};

// Takes down the texts that a widget paints.
class TextEngine : public QPaintEngine {
public:
    explicit TextEngine(std::vector<PaintedText>& painted)
        : QPaintEngine(AllFeatures), texts(painted) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {
    }
    void drawTiledPixmap(const QRectF&, const QPixmap&, const QPointF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawTextItem(const QPointF& place, const QTextItem& item) override {
        const QTransform toWidget = painter()->transform();
        const QRectF ink =
            QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(place);
        const QRectF clip =
            painter()->hasClipping() ? painter()->clipBoundingRect() : QRectF(-1e6, -1e6, 2e6, 2e6);
        texts.push_back({item.text().trimmed(), toWidget.mapRect(ink), toWidget.mapRect(clip)});
    }

private:
    std::vector<PaintedText>& texts;
};

class TextDevice : public QPaintDevice {
public:
    explicit TextDevice(const QWidget* shown) : widget(shown), engine(texts) {}
    QPaintEngine* paintEngine() const override { return &engine; }

    std::vector<PaintedText> texts;

protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
        case PdmWidth:
            return widget->width();
        case PdmHeight:
            return widget->height();
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(QPaintDevice::devicePixelRatioFScale());
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return widget->logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return widget->logicalDpiY();
        default:
            return 0;
        }
    }

private:
    const QWidget* widget;
    mutable TextEngine engine;
};

// Whole for this test: its parts are the toolkit's.
bool Is_Whole(const QWidget* widget) {
    return qobject_cast<const QLineEdit*>(widget) != nullptr ||
           qobject_cast<const QComboBox*>(widget) != nullptr ||
           qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
}

bool Is_Line(const QWidget* widget) {
    const auto* frame = qobject_cast<const QFrame*>(widget);
    return frame != nullptr &&
           (frame->frameShape() == QFrame::HLine || frame->frameShape() == QFrame::VLine);
}

struct Piece {
    QWidget* Widget = nullptr;
    QRect Place; // pixels of the window
    bool IsLeaf = true;
    std::vector<PaintedText> Texts; // in the window as well
};

QString Name_Of(const QWidget* widget) {
    const QString spoken =
        widget->accessibleName().isEmpty() ? widget->objectName() : widget->accessibleName();
    return u"%1 '%2'"_s.arg(QString::fromLatin1(widget->metaObject()->className()), spoken);
}

class Look {
public:
    explicit Look(QWidget* shown) : window(shown) { Collect(window); }
    QStringList Faults() {
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            Check_Texts(pieces[i]);
            Check_Name(pieces[i]);
            for (std::size_t k = i + 1; k < pieces.size(); ++k)
                Check_Pair(pieces[i], pieces[k]);
        }
        return faults;
    }

private:
    void Collect(QWidget* widget) {
        Piece piece;
        piece.Widget = widget;
        const QPoint corner = widget->mapTo(window, QPoint());
        piece.Place = QRect(corner, widget->size());
        if (!Is_Whole(widget) || qobject_cast<QComboBox*>(widget) != nullptr) {
            TextDevice device(widget);
            widget->render(&device, {}, {}, {});
            for (PaintedText& text : device.texts)
                if (!text.Text.isEmpty())
                    piece.Texts.push_back(
                        {text.Text, text.Ink.translated(corner), text.Clip.translated(corner)});
        }
        std::vector<QWidget*> children;
        if (auto* area = qobject_cast<QAbstractScrollArea*>(widget))
            for (QObject* child : area->viewport()->children())
                Add_Shown(children, child);
        else if (!Is_Whole(widget))
            for (QObject* child : widget->children())
                Add_Shown(children, child);
        // A plain one is a ground for others.
        piece.IsLeaf = (children.empty() || Is_Whole(widget)) &&
                       widget->metaObject() != &QWidget::staticMetaObject;
        pieces.push_back(piece);
        for (QWidget* child : children)
            Collect(child);
    }
    static void Add_Shown(std::vector<QWidget*>& children, QObject* child) {
        auto* shown = qobject_cast<QWidget*>(child);
        if (shown != nullptr && shown->isVisible() && !shown->isWindow() && !Is_Line(shown) &&
            !shown->visibleRegion().isEmpty())
            children.push_back(shown);
    }
    // What scrolls may stand out.
    QRectF Room_Of(const QWidget* widget) const {
        QRect room(widget->mapTo(window, QPoint()), widget->size());
        while (widget != window) {
            widget = widget->parentWidget();
            const QWidget* above = widget->parentWidget();
            if (above != nullptr && qobject_cast<const QAbstractScrollArea*>(above) != nullptr)
                break;
            room &= QRect(widget->mapTo(window, QPoint()), widget->size());
        }
        return room;
    }
    void Check_Texts(const Piece& piece) {
        const QRectF room =
            Room_Of(piece.Widget).adjusted(-Overhang, -Overhang, Overhang, Overhang);
        if (piece.IsLeaf && !piece.Place.isEmpty() &&
            !Room_Of(piece.Widget).adjusted(-4, -4, 4, 4).contains(QRectF(piece.Place)))
            Say(piece.Widget, u"stands out of its window"_s);
        for (const PaintedText& text : piece.Texts) {
            if (text.Text.contains(u'\u2026'))
                Say(piece.Widget, u"shortens \"%1\""_s.arg(text.Text));
            else if (!room.contains(text.Ink) ||
                     !text.Clip.adjusted(-Overhang, -Overhang, Overhang, Overhang)
                          .contains(text.Ink))
                Say(piece.Widget,
                    u"cuts \"%1\" by %2"_s.arg(text.Text).arg(Missing(text.Ink, room & text.Clip)));
        }
        if (const auto* button = qobject_cast<wbButton*>(piece.Widget))
            for (const PaintedText& text : piece.Texts)
                if (text.Ink.intersects(
                        QRectF(button->Picture_Rect().translated(piece.Place.topLeft()))))
                    Say(button, u"shows its picture on \"%1\""_s.arg(text.Text));
        const auto* field = qobject_cast<QLineEdit*>(piece.Widget);
        if (field != nullptr &&
            field->fontMetrics().horizontalAdvance(field->text()) + 4 > field->width())
            Say(field, u"cuts \"%1\""_s.arg(field->text()));
    }
    void Check_Name(const Piece& piece) {
        if (!piece.IsLeaf || piece.Widget->focusPolicy() == Qt::NoFocus)
            return;
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(piece.Widget);
        if (const auto* combo = qobject_cast<QComboBox*>(piece.Widget)) {
            if (spoken->relations(QAccessible::Label).isEmpty() ||
                (combo->isEditable() && combo->lineEdit()->accessibleName().isEmpty()))
                Say(combo, u"has no label"_s);
        } else if (spoken == nullptr || spoken->text(QAccessible::Name).isEmpty()) {
            Say(piece.Widget, u"has no name"_s);
        }
    }
    void Check_Pair(const Piece& one, const Piece& other) {
        // A word that a field says lies above the others for a while.
        if (one.Widget->objectName() == "FieldWord"_L1 ||
            other.Widget->objectName() == "FieldWord"_L1)
            return;
        if (one.Widget->isAncestorOf(other.Widget)) {
            if (other.IsLeaf)
                for (const PaintedText& text : one.Texts)
                    if (text.Ink.intersects(QRectF(other.Place)))
                        Say(other.Widget, u"lies on \"%1\""_s.arg(text.Text));
            return;
        }
        for (const auto& [text, control] : {std::pair{&one, &other}, std::pair{&other, &one}})
            Check_Gap(*text, *control);
        if (one.IsLeaf && other.IsLeaf && one.Place.intersects(other.Place))
            Say(one.Widget, u"and %1 overlap by %2 x %3"_s.arg(Name_Of(other.Widget))
                                .arg((one.Place & other.Place).width())
                                .arg((one.Place & other.Place).height()));
    }
    // A label that ends right at its field reads as cut.
    void Check_Gap(const Piece& label, const Piece& field) {
        if (qobject_cast<QLabel*>(label.Widget) == nullptr || !field.IsLeaf ||
            qobject_cast<QLabel*>(field.Widget) != nullptr)
            return;
        for (const PaintedText& text : label.Texts)
            if (text.Ink.adjusted(-2, 0, 2, 0).intersects(QRectF(field.Place)))
                Say(label.Widget, u"has \"%1\" touch %2"_s.arg(text.Text, Name_Of(field.Widget)));
    }
    static double Missing(const QRectF& ink, const QRectF& room) {
        return std::max({room.left() - ink.left(), room.top() - ink.top(),
                         ink.right() - room.right(), ink.bottom() - room.bottom()});
    }
    void Say(const QWidget* widget, const QString& fault) {
        faults.append(u"%1: %2 %3"_s.arg(window->windowTitle(), Name_Of(widget), fault));
    }

    QWidget* window;
    std::vector<Piece> pieces;
    QStringList faults;
};

} // namespace

QStringList Layout_Faults(QWidget* window) {
    return Look(window).Faults();
}
