#include "controls/file_drops.h"

#include <QApplication>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(FileDrops, A_file_is_never_accepted_as_moved) {
    FileDrops guard;
    QWidget window;
    QLineEdit field(&window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(u"/tmp/a"_s)});
    file.setText(u"/tmp/a"_s);
    const struct {
        Qt::DropActions offered;
        Qt::DropAction accepted;
    } cases[] = {{Qt::MoveAction, Qt::CopyAction},
                 {Qt::MoveAction | Qt::LinkAction, Qt::LinkAction},
                 {Qt::MoveAction | Qt::CopyAction, Qt::CopyAction}};
    const QPoint place(5, 5);
    for (const auto& one : cases) {
        // With Shift, a source proposes to move.
        QDragEnterEvent entered(place, one.offered, &file, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(window.windowHandle(), &entered);
        QDragMoveEvent moved(place, one.offered, &file, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(window.windowHandle(), &moved);
        QDropEvent dropped(place, one.offered, &file, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(window.windowHandle(), &dropped);
        for (const QDropEvent* event : {static_cast<QDropEvent*>(&moved), &dropped}) {
            EXPECT_TRUE(event->isAccepted());
            EXPECT_EQ(event->dropAction(), one.accepted)
                << event->type() << ' ' << one.offered.toInt();
        }
    }
    EXPECT_EQ(field.text(), u"/tmp/a"_s.repeated(3));
}
