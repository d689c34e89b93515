// The user's links as the editor shows them: one row under the other, each indented by its depth.
#pragma once

#include <QListView>
#include <QTimer>

#include <optional>

class LinksModel;

class LinksList : public QListView {
    Q_OBJECT
public:
    explicit LinksList(QWidget* parent);

    // Shows Global_LinkArray as it stands now and selects a row; -1 = none.
    void Load_Global_LinksArray_To_List(int selectedRow);
    // Only this row's text or kind has changed.
    void Update_Row(int row);
    int Selected_Row() const;

Q_SIGNALS:
    void Row_Selected(int row);
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
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    int Row_At(const QPoint& place) const;
    void Follow_Mouse();
    void End_Drag();

    LinksModel* rows;
    bool loading = false;
    std::optional<QPoint> pressed;
    int draggedRow = -1;
    int targetRow = -1; // where SelShape stands while a row is dragged
    QTimer Timer1;      // while a row is dragged
};
