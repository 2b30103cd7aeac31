#include "shell/widgets/HouseIcon.h"

#include "drawing/IconDrawing.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QPushButton>

#include <array>
#include <memory>

/// The drawings lie in a static library, whose resources the linker leaves out unless they are asked for. The
/// macro wants to stand outside of all namespaces.
static void LoadDrawings() {
    Q_INIT_RESOURCE(icons);
}

namespace kelvaro {

namespace {

/// Draws in ink what a drawing covers. The colour is looked up each time, so that icons follow a change of
/// theme.
class InkEngine : public QIconEngine {
public:
    InkEngine(const QString &file, const QColor &ink)
        : file_(file), drawing_(std::make_shared<const IconDrawing>(file)), ink_(ink) {}

    void paint(QPainter *painter, const QRect &area, QIcon::Mode mode, QIcon::State state) override {
        const double ratio = painter->device()->devicePixelRatioF();
        QPixmap drawn = pixmap(area.size() * ratio, mode, state);
        drawn.setDevicePixelRatio(ratio);
        painter->drawPixmap(area, drawn);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State /*state*/) override {
        const QColor ink = InkIn(mode);
        const QString key = QStringLiteral("%1 %2 %3x%4")
                                .arg(file_, ink.name(QColor::HexArgb))
                                .arg(size.width())
                                .arg(size.height());
        QPixmap drawn;
        if (!QPixmapCache::find(key, &drawn)) {
            drawn = drawing_->At(size);
            QPainter painter(&drawn);
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(drawn.rect(), ink);
            painter.end();
            QPixmapCache::insert(key, drawn);
        }
        return drawn;
    }

    QIconEngine *clone() const override { return new InkEngine(*this); }

private:
    QColor InkIn(QIcon::Mode mode) const {
        const QPalette colours = QGuiApplication::palette();
        if (mode == QIcon::Disabled) {
            return colours.color(QPalette::Disabled, QPalette::WindowText);
        }
        if (mode == QIcon::Selected) {
            return colours.color(QPalette::HighlightedText);
        }
        return ink_.isValid() ? ink_ : colours.color(QPalette::WindowText);
    }

    QString file_;
    std::shared_ptr<const IconDrawing> drawing_;
    QColor ink_; ///< not valid where it is the theme's
};

struct ButtonIcon {
    const char *button; ///< object name
    const char *icon;
};

constexpr std::array<ButtonIcon, 16> usualButtons{{{"cmdSave", "save"},
                                                   {"cmdAddSave", "save"},
                                                   {"cmdEditUpdate", "accept"},
                                                   {"cmdFind", "find"},
                                                   {"cmdEdit", "edit"},
                                                   {"cmdNew", "new"},
                                                   {"cmdSubmit", "accept"},
                                                   {"Cmd_Submit", "open"},
                                                   {"cmdadd", "add"},
                                                   {"cmdTimeZoneHelp", "zone"},
                                                   {"cmdBringBack", "undo"},
                                                   {"CMDCANCEl", "close"},
                                                   {"cmdAddCLose", "close"},
                                                   {"cmdAddCLose1", "close"},
                                                   {"Cmd_Close", "close"},
                                                   {"Command1", "close"}}};

} // namespace

QIcon HouseIcon(const char *name, const QColor &ink) {
    LoadDrawings();
    return QIcon(new InkEngine(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)), ink));
}

void DressButtons(const QWidget &dialog) {
    for (const auto &[name, icon] : usualButtons) {
        if (auto *button = dialog.findChild<QPushButton *>(QString::fromLatin1(name))) {
            button->setIcon(HouseIcon(icon));
        }
    }
}

} // namespace kelvaro
