#include "links/editor/links_list.h"

#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/svg_icon.h"
#include "links/editor/link_operations.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

static void Init_Pictures() {
    Q_INIT_RESOURCE(links_editor);
}

namespace {

constexpr int RowHeight = 20;
constexpr int Indent = 18; // a depth
constexpr int PictureSize = 16;
constexpr int FollowInterval = 10; // ms
constexpr qsizetype MeasuredText = 300;
constexpr ColorValue SelectedBack = 0xEFE2E0;

QIcon Picture_Of(RowIcon icon) {
    switch (icon) {
    case RowIcon::Web:
        return Load_Icon(IconName::Link);
    case RowIcon::Category:
        return Load_Icon(IconName::Category);
    case RowIcon::Separator:
        return Load_Icon(IconName::Separator);
    case RowIcon::Program:
        return Svg_Icon(u":/links/program_file.svg"_s);
    case RowIcon::Document:
        break;
    }
    return Svg_Icon(u":/links/document.svg"_s);
}

QString Kind_Of(RowIcon icon) {
    switch (icon) {
    case RowIcon::Web:
        return u"page"_s;
    case RowIcon::Category:
        return u"category"_s;
    case RowIcon::Separator:
        return u"separator"_s;
    case RowIcon::Program:
        return u"program"_s;
    case RowIcon::Document:
        break;
    }
    return u"document"_s;
}

class RowPainter : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {0, RowHeight};
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const LinkRec& row = Global_LinkArray[static_cast<std::size_t>(index.row())];
        if (option.state.testFlag(QStyle::State_Selected))
            painter->fillRect(option.rect, palette::To_Color(SelectedBack));
        const int left = option.rect.left() + 4 + Row_Depth(row) * Indent;
        const int top = option.rect.top() + (RowHeight - PictureSize) / 2;
        Picture_Of(Icon_Of(row)).paint(painter, left, top, PictureSize, PictureSize);
        QFont font = Small_Font();
        font.setBold(Is_Category(row));
        painter->setFont(font);
        painter->setPen(palette::To_Color(palette::Black));
        const QRect text =
            option.rect.adjusted(left - option.rect.left() + PictureSize + 6, 0, -4, 0);
        painter->drawText(
            text, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
            QFontMetrics(font).elidedText(row.LinkName.left(MeasuredText).simplified(),
                                          Qt::ElideRight, text.width()));
    }
};

} // namespace

class LinksModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(Link_Count(Global_LinkArray));
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid() || index.row() >= rowCount({}))
            return {};
        const LinkRec& row = Global_LinkArray[static_cast<std::size_t>(index.row())];
        if (role == Qt::DisplayRole)
            return row.LinkName;
        if (role == Qt::AccessibleDescriptionRole)
            return u"%1, level %2"_s.arg(Kind_Of(Icon_Of(row))).arg(Row_Depth(row) + 1);
        if (role == Qt::ToolTipRole)
            return u"Click to set the properties"_s;
        return {};
    }
    void Reset() {
        beginResetModel();
        endResetModel();
    }
};

LinksList::LinksList(QWidget* parent) : QListView(parent), rows(new LinksModel(this)) {
    Init_Pictures();
    setModel(rows);
    setItemDelegate(new RowPainter(this));
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setFont(Small_Font());
    setAccessibleName(u"My Links"_s);
    setAcceptDrops(true);
    Timer1.setInterval(FollowInterval);
    connect(&Timer1, &QTimer::timeout, this, &LinksList::Follow_Mouse);
}

void LinksList::Load_Global_LinksArray_To_List(int selectedRow) {
    const int scrolled = verticalScrollBar()->value();
    loading = true;
    rows->Reset();
    verticalScrollBar()->setValue(scrolled);
    if (selectedRow >= 0 && selectedRow < rows->rowCount({}))
        setCurrentIndex(rows->index(selectedRow));
    loading = false;
}

void LinksList::Update_Row(int row) {
    Q_EMIT rows->dataChanged(rows->index(row), rows->index(row));
}

int LinksList::Selected_Row() const {
    return currentIndex().isValid() ? currentIndex().row() : -1;
}

void LinksList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!loading && current.isValid())
        Q_EMIT Row_Selected(current.row());
}

int LinksList::Row_At(const QPoint& place) const {
    const QPoint inside(std::clamp(place.x(), 0, viewport()->width() - 1),
                        std::clamp(place.y(), 0, viewport()->height() - 1));
    const QModelIndex index = indexAt(inside);
    return index.isValid() ? index.row() : rows->rowCount({}) - 1;
}

void LinksList::mousePressEvent(QMouseEvent* event) {
    QListView::mousePressEvent(event);
    pressed.reset();
    if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid())
        pressed = event->pos();
}

void LinksList::mouseMoveEvent(QMouseEvent* event) {
    if (!pressed || !event->buttons().testFlag(Qt::LeftButton))
        return;
    if (draggedRow < 0 &&
        (event->pos() - *pressed).manhattanLength() >= QApplication::startDragDistance()) {
        draggedRow = Selected_Row();
        Timer1.start();
    }
    if (draggedRow >= 0) {
        targetRow = Row_At(event->pos());
        viewport()->update();
    }
}

// Above and below the list the mouse scrolls it.
void LinksList::Follow_Mouse() {
    if (!QApplication::mouseButtons().testFlag(Qt::LeftButton)) {
        End_Drag();
        return;
    }
    const QPoint place = viewport()->mapFromGlobal(QCursor::pos());
    const int beyond = place.y() < 0 ? place.y() : std::max(place.y() - viewport()->height(), 0);
    if (beyond != 0) {
        verticalScrollBar()->setValue(verticalScrollBar()->value() +
                                      std::clamp(beyond / 4, -RowHeight, RowHeight));
        targetRow = Row_At(place);
        viewport()->update();
    }
}

void LinksList::End_Drag() {
    Timer1.stop();
    pressed.reset();
    draggedRow = targetRow = -1;
    viewport()->update();
}

void LinksList::mouseReleaseEvent(QMouseEvent* event) {
    const int from = draggedRow;
    const int to = targetRow;
    End_Drag();
    QListView::mouseReleaseEvent(event);
    if (from >= 0 && to >= 0 && to != from)
        Q_EMIT Row_Dragged(from, to);
}

void LinksList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && draggedRow >= 0)
        End_Drag();
    else if (event->key() == Qt::Key_Escape || event->modifiers().testFlag(Qt::AltModifier) ||
             event->modifiers().testFlag(Qt::ControlModifier))
        event->ignore();
    else
        QListView::keyPressEvent(event);
}

void LinksList::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (targetRow < 0 || targetRow == draggedRow)
        return;
    // SelShape: the place that the row would take.
    const QRect place = visualRect(rows->index(targetRow));
    QPainter painter(viewport());
    const int line = targetRow < draggedRow ? place.top() : place.bottom() - 1;
    painter.fillRect(place.left(), line, place.width(), 2, palette::To_Color(palette::Focus_Mark));
}

void LinksList::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void LinksList::dragMoveEvent(QDragMoveEvent* event) {
    event->acceptProposedAction();
}

void LinksList::dropEvent(QDropEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() != 1 || !urls.first().isLocalFile())
        return;
    event->acceptProposedAction();
    // After the drop has returned: a question must not hold the window that the file comes from.
    const QString path = urls.first().toLocalFile();
    QMetaObject::invokeMethod(
        this, [this, path] { Q_EMIT File_Dropped(path); }, Qt::QueuedConnection);
}
