#include "drawing/IconDrawing.h"
#include "runtime/Paths.h"
#include "shell/window/MDILight.h"

#include <QApplication>
#include <QIcon>
#include <QStandardPaths>
#include <QStyle>
#include <QTimer>

#include <filesystem>

namespace {

/// The icon of the program, in its plainer drawing where it is small.
QIcon ProgramIcon() {
    const kelvaro::IconDrawing small(QStringLiteral(":/kelvaro-basic-small.svg"));
    const kelvaro::IconDrawing large(QStringLiteral(":/kelvaro-basic.svg"));
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        icon.addPixmap((size > 32 ? large : small).At({size, size}));
    }
    return icon;
}

std::filesystem::path PathOf(const QString &name) {
    return kelvaro::PathOfText(name.toStdString());
}

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Kelvaro"));
    QApplication::setApplicationName(QStringLiteral("Kelvaro Basic"));
    QApplication::setDesktopFileName(QStringLiteral("kelvaro-basic"));
    // So long may the letters be apart that are typed to find a name in a list.
    constexpr int betweenLetters = 1000; // milliseconds
    QApplication::setKeyboardInputInterval(betweenLetters);
    // The styles of Windows paint headings and selections in colours of their own, which go ill with
    // parchment.
    if (QApplication::style()->name().startsWith(QLatin1String("windows"))) {
        QApplication::setStyle(QStringLiteral("Fusion"));
    }
    kelvaro::MDILight window;
    window.show();
    // From within the event loop, where a window closed in the middle of the run ends the program.
    QTimer begin;
    begin.setSingleShot(true);
    QObject::connect(&begin, &QTimer::timeout, &window, [&window] {
        window.Start(PathOf(QApplication::applicationDirPath()),
                     PathOf(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)));
        // The drawing of the icon would keep the first view waiting.
        QApplication::setWindowIcon(ProgramIcon());
    });
    begin.start(0);
    return QApplication::exec();
}
