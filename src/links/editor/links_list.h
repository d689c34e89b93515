// The user's links as the editor shows them: one row under the other, each indented by its depth.
#pragma once

#include <QListView>
#include <QTimer>

class LinksModel;
class QPainter;

class LinksList : public QListView {
    Q_OBJECT
public:
    explicit LinksList(QWidget* parent);

    // Shows Global_LinkArray as it stands now and selects a row; -1 = none. Tells nobody.
    void Load_Global_LinksArray_To_List(int selectedRow);
    // Only this row's text or kind has changed.
    void Update_Row(int row);
    int Selected_Row() const;

Q_SIGNALS:
    void Row_Selected(int row); // by the user; -1 = none
    // A row was dragged with the mouse onto the place of another.
    void Row_Dragged(int from, int to);
    void File_Dropped(const QString& path);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    int Row_At(const QPoint& place) const;
    void Aim_At(const QPoint& place);
    void Timer1_Tick();
    void Scroll_List(int step);
    void End_Drag();
    void Paint_DraggedRow(QPainter& painter);

    LinksModel* rows;
    bool loading = false;
    QPoint pressedAt;
    int pressedRow = -1;
    int draggedRow = -1;
    int targetRow = -1; // where SelShape stands while a row is dragged
    QPoint mouse;       // pixels of the list
    QTimer Timer1;      // follows the mouse while a row is dragged
    QTimer Timer3;      // scrolls up while it is above the list
    QTimer Timer4;      // scrolls down while it is below
};
