#include "notes/category_list.h"

#include "controls/icons.h"
#include "controls/metrics.h"
#include "notes/notes_operations.h"
#include "platform/shown_text.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowHeight = 20;
constexpr int CatImgSize = 16;

} // namespace

CategoryList::CategoryList(QWidget* parent) : QListWidget(parent) {
    setFont(Small_Font());
    setAccessibleName(u"Categories"_s);
    setIconSize(QSize(CatImgSize, CatImgSize));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    setUniformItemSizes(true);
    connect(this, &QListWidget::currentRowChanged, this, &CategoryList::Category_Chosen);
}

void CategoryList::Fill(int selected) {
    const QSignalBlocker silent(this);
    const QIcon CatImg = Load_Icon(IconName::NoteCategory);
    const auto counts = Count_Notes();
    clear();
    for (int category = 0; category < Note_Categories(); ++category) {
        const auto place = static_cast<std::size_t>(category);
        const QString name = Global_NoteCategories[place].left(500);
        auto* item = new QListWidgetItem(
            CatImg, name.simplified() + " ("_L1 + QString::number(counts[place]) + u')', this);
        item->setSizeHint(QSize(0, RowHeight));
        item->setToolTip(platform::Tip_Text(name));
    }
    setCurrentRow(selected);
}

void CategoryList::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::RightButton)
        QListWidget::mousePressEvent(event);
}

void CategoryList::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::RightButton)
        QListWidget::mouseDoubleClickEvent(event);
}

void CategoryList::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QListWidgetItem* item = byKey ? currentItem() : itemAt(event->pos());
    if (item == nullptr)
        return;
    const QPoint below = viewport()->mapToGlobal(visualItemRect(item).bottomLeft());
    Q_EMIT Menu_Asked(row(item), byKey ? below : event->globalPos());
}

// The toolkit makes the first row current with the focus; a list without a selection stays so.
void CategoryList::focusInEvent(QFocusEvent* event) {
    const int selected = currentRow();
    const QSignalBlocker silent(this);
    QListWidget::focusInEvent(event);
    setCurrentRow(selected);
}

void CategoryList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F2 && currentRow() != -1)
        Q_EMIT Rename_Asked(currentRow());
    else if (event->key() == Qt::Key_Delete && currentRow() != -1)
        Q_EMIT Delete_Asked(currentRow());
    else
        QListWidget::keyPressEvent(event);
}
