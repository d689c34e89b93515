// A window of the toolbar's size with nothing in it: what the toolkit itself costs.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    window.setGeometry(100, 0, 333, 20);
    window.show();
    return QApplication::exec();
}
