#include "controls/file_drops.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>

#include <memory>

namespace {

bool Is_Drop(const QEvent& event) {
    return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove ||
           event.type() == QEvent::Drop;
}

// The toolkit answers with one of the actions that are offered; X11 offers only what is proposed,
// and lets a copy be the answer to anything.
class AnsweredDrop : public QDropEvent {
public:
    static void Answer(QDropEvent& drop, Qt::DropAction action) {
        drop.*(&AnsweredDrop::m_dropAction) = action;
    }
};

// A source that names a move alone has to take the answer "copied" as well.
Qt::DropActions Without_Move(Qt::DropActions actions) {
    const Qt::DropActions left = actions & (Qt::CopyAction | Qt::LinkAction);
    return left ? left : Qt::DropActions(Qt::CopyAction);
}

std::unique_ptr<QDropEvent> Harmless(const QDropEvent& drop) {
    const QPoint place = drop.position().toPoint();
    const Qt::DropActions actions = Without_Move(drop.possibleActions());
    if (drop.type() == QEvent::DragEnter)
        return std::make_unique<QDragEnterEvent>(place, actions, drop.mimeData(), drop.buttons(),
                                                 drop.modifiers());
    if (drop.type() == QEvent::DragMove)
        return std::make_unique<QDragMoveEvent>(place, actions, drop.mimeData(), drop.buttons(),
                                                drop.modifiers());
    return std::make_unique<QDropEvent>(drop.position(), actions, drop.mimeData(), drop.buttons(),
                                        drop.modifiers());
}

} // namespace

FileDrops::FileDrops() {
    qApp->installEventFilter(this);
}

bool FileDrops::eventFilter(QObject* watched, QEvent* event) {
    if (!Is_Drop(*event) || event == passing || !watched->isWindowType())
        return false;
    auto& drop = static_cast<QDropEvent&>(*event);
    const bool isForeign = drop.source() == nullptr;
    if (!isForeign || !drop.mimeData()->hasUrls() || !(drop.possibleActions() & Qt::MoveAction))
        return false;
    const std::unique_ptr<QDropEvent> harmless = Harmless(drop);
    harmless->setAccepted(drop.isAccepted());
    passing = harmless.get();
    QCoreApplication::sendEvent(watched, harmless.get());
    passing = nullptr;
    AnsweredDrop::Answer(drop, harmless->isAccepted() ? harmless->dropAction() : Qt::IgnoreAction);
    drop.setAccepted(harmless->isAccepted());
    return true;
}
