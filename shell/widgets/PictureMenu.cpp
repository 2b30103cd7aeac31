#include "shell/widgets/PictureMenu.h"

#include "drawing/FileName.h"
#include "drawing/WholeFile.h"
#include "shell/widgets/FileChoice.h"
#include "shell/widgets/MessageBoxes.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDrag>
#include <QPixmap>
#include <QShortcut>
#include <QUrl>

#include <utility>

namespace kelvaro {

namespace {

constexpr FileKind pngFile{"PNG Pictures (*.png)", ".png"};
constexpr FileKind svgFile{"SVG Pictures (*.svg)", ".svg"};
constexpr int draggedSide = 128; // pixels of the picture below the mouse

/// Without the places to break a line that a heading has.
QString FileNameFor(const Picture &picture) {
    return FileNameOf(QString(picture.name).remove(u'\u200b'));
}

void SavePicture(QWidget *parent, const Picture &picture) {
    const QString name = AskFile(parent, {pngFile, svgFile}, FileNameFor(picture));
    if (name.isEmpty()) {
        return;
    }
    const bool isSvg = name.endsWith(QLatin1String(svgFile.ending), Qt::CaseInsensitive);
    WriteWholeFile(name, isSvg ? SvgOf(picture) : PngOf(picture));
    NoteFolderOf(name, parent);
}

} // namespace

void OfferMenu(QWidget *widget) {
    widget->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto *key = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F10), widget);
    key->setContext(Qt::WidgetShortcut);
    QObject::connect(key, &QShortcut::activated, widget, [widget] {
        const QPoint place = widget->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &event);
    });
}

void AddToMenu(QWidget *widget, const char *name, const QString &text, std::function<void()> work) {
    auto *action = new QAction(text, widget);
    action->setObjectName(QString::fromLatin1(name));
    QObject::connect(action, &QAction::triggered, widget,
                     [widget, work = std::move(work)] { Guarded(widget, work); });
    widget->addAction(action);
}

void OfferPicture(QWidget *widget, std::function<Picture()> picture) {
    AddToMenu(widget, "copyPicture", QObject::tr("Copy as &Picture"),
              [picture] { QApplication::clipboard()->setMimeData(MimeOf(picture()).release()); });
    AddToMenu(widget, "savePicture", QObject::tr("&Save Picture..."),
              [widget, picture = std::move(picture)] { SavePicture(widget, picture()); });
}

std::unique_ptr<QMimeData> MimeOf(const Picture &picture) {
    auto mime = std::make_unique<QMimeData>();
    mime->setImageData(ImageOf(picture));
    mime->setData(QStringLiteral("image/svg+xml"), SvgOf(picture));
    return mime;
}

void PictureDrag::Start(QWidget *source, const Picture &picture) {
    if (!folder_) {
        folder_ = std::make_unique<QTemporaryDir>();
    }
    const QString file = folder_->filePath(FileNameFor(picture) + QLatin1String(pngFile.ending));
    WriteWholeFile(file, PngOf(picture));
    std::unique_ptr<QMimeData> mime = MimeOf(picture);
    mime->setUrls({QUrl::fromLocalFile(file)});
    auto *drag = new QDrag(source);
    drag->setPixmap(QPixmap::fromImage(
        qvariant_cast<QImage>(mime->imageData())
            .scaled(draggedSide, draggedSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    drag->setMimeData(mime.release());
    drag->exec(Qt::CopyAction);
}

} // namespace kelvaro
