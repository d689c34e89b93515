#include "links/editor/links_list.h"

#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/palette.h"
#include "controls/svg_icon.h"
#include "links/editor/link_operations.h"
#include "platform/desktop.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QDragEnterEvent>
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
constexpr double DraggedOpacity = 0.6;
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
        if (static_cast<std::size_t>(index.row()) >= Global_LinkArray.size())
            return;
        const LinkRec& row = Global_LinkArray[static_cast<std::size_t>(index.row())];
        if (option.state.testFlag(QStyle::State_Selected))
            painter->fillRect(option.rect, palette::To_Color(SelectedBack));
        if (option.state.testFlag(QStyle::State_HasFocus))
            Draw_Frame(*painter, option.rect, palette::To_Color(palette::Focus_Mark));
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
            QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, text.width()));
    }
};

} // namespace

class LinksModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(Global_LinkArray.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid() || index.row() >= rowCount({}))
            return {};
        const LinkRec& row = Global_LinkArray[static_cast<std::size_t>(index.row())];
        if (role == Qt::DisplayRole)
            return row.LinkName.left(MeasuredText).simplified();
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
    for (QTimer* timer : {&Timer1, &Timer3, &Timer4})
        timer->setInterval(FollowInterval);
    connect(&Timer1, &QTimer::timeout, this, &LinksList::Timer1_Tick);
    connect(&Timer3, &QTimer::timeout, this, [this] { Scroll_List(mouse.y()); });
    connect(&Timer4, &QTimer::timeout, this,
            [this] { Scroll_List(mouse.y() - viewport()->height()); });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!loading)
            Q_EMIT Row_Selected(Selected_Row());
    });
}

void LinksList::Load_Global_LinksArray_To_List(int selectedRow) {
    End_Drag();
    const int scrolled = verticalScrollBar()->value();
    loading = true;
    rows->Reset();
    doItemsLayout();
    verticalScrollBar()->setValue(scrolled);
    if (selectedRow >= 0 && selectedRow < rows->rowCount({}))
        setCurrentIndex(rows->index(selectedRow));
    loading = false;
}

void LinksList::Update_Row(int row) {
    Q_EMIT rows->dataChanged(rows->index(row), rows->index(row));
}

int LinksList::Selected_Row() const {
    const QModelIndexList selected = selectionModel()->selectedRows();
    return selected.isEmpty() ? -1 : selected.front().row();
}

int LinksList::Row_At(const QPoint& place) const {
    const QPoint inside(1, std::clamp(place.y(), 0, viewport()->height() - 1));
    const QModelIndex index = indexAt(inside);
    return index.isValid() ? index.row() : rows->rowCount({}) - 1;
}

void LinksList::mousePressEvent(QMouseEvent* event) {
    End_Drag();
    QListView::mousePressEvent(event);
    const QModelIndex index = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && index.isValid()) {
        pressedRow = index.row();
        pressedAt = event->pos();
    }
}

// A list of the toolkit would select every row on the way.
void LinksList::mouseMoveEvent(QMouseEvent* event) {
    if (pressedRow < 0)
        return;
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        End_Drag();
        return;
    }
    const bool isFar =
        (event->pos() - pressedAt).manhattanLength() >= QApplication::startDragDistance();
    if (draggedRow < 0 && isFar) {
        draggedRow = pressedRow;
        Timer1.start();
    }
    if (draggedRow >= 0)
        Aim_At(event->pos());
}

void LinksList::Aim_At(const QPoint& place) {
    mouse = place;
    targetRow = Row_At(place);
    const auto enable = [](QTimer& timer, bool enabled) {
        if (enabled != timer.isActive())
            enabled ? timer.start() : timer.stop();
    };
    enable(Timer3, place.y() < 0);
    enable(Timer4, place.y() >= viewport()->height());
    viewport()->update();
}

void LinksList::Timer1_Tick() {
    // Where the system does not tell, the mouse's own events will do.
    if (const auto cursor = platform::Desktop::Get().Cursor_Position())
        Aim_At(viewport()->mapFromGlobal(QPoint(cursor->x, cursor->y)));
}

// The farther the mouse is from the list, the faster.
void LinksList::Scroll_List(int beyond) {
    const int step = std::clamp(beyond / 8, -RowHeight, RowHeight) + (beyond < 0 ? -1 : 1);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + step);
    targetRow = Row_At(mouse);
    viewport()->update();
}

void LinksList::End_Drag() {
    for (QTimer* timer : {&Timer1, &Timer3, &Timer4})
        timer->stop();
    pressedRow = draggedRow = targetRow = -1;
    viewport()->update();
}

void LinksList::mouseReleaseEvent(QMouseEvent* event) {
    const int from = draggedRow;
    if (from >= 0)
        Aim_At(event->pos());
    const int to = targetRow;
    End_Drag();
    if (from < 0)
        QListView::mouseReleaseEvent(event);
    else if (to >= 0 && to != from)
        Q_EMIT Row_Dragged(from, to);
}

void LinksList::hideEvent(QHideEvent* event) {
    End_Drag();
    QListView::hideEvent(event);
}

void LinksList::focusOutEvent(QFocusEvent* event) {
    End_Drag();
    QListView::focusOutEvent(event);
}

void LinksList::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Escape && draggedRow >= 0)
        End_Drag();
    else if (key == Qt::Key_Escape || event->modifiers().testFlag(Qt::AltModifier) ||
             event->modifiers().testFlag(Qt::ControlModifier))
        event->ignore();
    else if (Selected_Row() < 0 && (key == Qt::Key_Down || key == Qt::Key_Up))
        setCurrentIndex(rows->index(0));
    else
        QListView::keyPressEvent(event);
}

void LinksList::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (draggedRow < 0 || targetRow < 0)
        return;
    QPainter painter(viewport());
    Paint_DraggedRow(painter);
    if (targetRow != draggedRow) {
        // SelShape: the place that the row would take.
        const QRect place = visualRect(rows->index(targetRow));
        const int line = targetRow < draggedRow ? place.top() : place.bottom() - 1;
        painter.fillRect(place.left(), line, place.width(), 2,
                         palette::To_Color(palette::Focus_Mark));
    }
}

void LinksList::Paint_DraggedRow(QPainter& painter) {
    QStyleOptionViewItem look;
    initViewItemOption(&look);
    look.rect = QRect(0, mouse.y() - RowHeight / 2, viewport()->width(), RowHeight);
    painter.save();
    painter.setOpacity(DraggedOpacity);
    painter.fillRect(look.rect, palette::To_Color(palette::White));
    itemDelegate()->paint(&painter, look, rows->index(draggedRow));
    painter.restore();
}

// One file; more at once are no link.
void LinksList::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.front().isLocalFile())
        event->acceptProposedAction();
}

void LinksList::dragMoveEvent(QDragMoveEvent* event) {
    event->acceptProposedAction();
}

void LinksList::dropEvent(QDropEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() != 1 || !urls.front().isLocalFile())
        return;
    event->acceptProposedAction();
    // After the drop has returned: a question must not hold the window that the file comes from.
    const QString path = urls.front().toLocalFile();
    QMetaObject::invokeMethod(
        this, [this, path] { Q_EMIT File_Dropped(path); }, Qt::QueuedConnection);
}
