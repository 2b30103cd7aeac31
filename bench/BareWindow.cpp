// The least that a desktop program with Qt can show: what the start of the program is measured beside.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    QMenu *menu = window.menuBar()->addMenu(QStringLiteral("&File"));
    QObject::connect(menu->addAction(QStringLiteral("E&xit")), &QAction::triggered, &window, &QWidget::close);
    // As large as the program's.
    window.setGeometry(window.screen()->availableGeometry());
    window.show();
    return QApplication::exec();
}
