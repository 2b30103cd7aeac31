#pragma once

#include "drawing/Picture.h"

#include <QMimeData>
#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <memory>

namespace kelvaro {

/// Gives a widget a context menu of its actions, also by Shift+F10.
void OfferMenu(QWidget *widget);

/// Adds an entry to that menu, under the object name of its action. An error that breaks the work off is
/// shown.
void AddToMenu(QWidget *widget, const char *name, const QString &text, std::function<void()> work);

/// Adds "Copy as Picture" and "Save Picture..." to it.
void OfferPicture(QWidget *widget, std::function<Picture()> picture);

/// A picture as other programs take it from the clipboard: as dots and as SVG.
std::unique_ptr<QMimeData> MimeOf(const Picture &picture);

/// Drags a picture out of a window, also as a file.
class PictureDrag {
public:
    /// Returns when the picture was dropped or the drag given up. Raises FileError when its file cannot
    /// be written.
    void Start(QWidget *source, const Picture &picture);

private:
    /// Who takes the file may come for it at any time after the drop, so it stays as long as this.
    std::unique_ptr<QTemporaryDir> folder_;
};

} // namespace kelvaro
