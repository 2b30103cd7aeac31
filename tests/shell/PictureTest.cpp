#include "horoscope/CalculateHoroscope.h"
#include "horoscope/Horoscope.h"
#include "horoscope/NoDisplay.h"
#include "shell/views/ChartView.h"
#include "shell/widgets/FileChoice.h"
#include "shell/widgets/TextGridView.h"
#include "shell/window/HoroscopeViews.h"
#include "store/database/Connection.h"
#include "tests/drawing/Likeness.h"
#include "tests/shell/MessageBoxAnswer.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDrag>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <memory>

using namespace kelvaro;

namespace {

constexpr int chartWidth = 1417;      // 12 cm at 300 dots an inch
constexpr int dotsPerMetre = 11811;   // 300 an inch
constexpr double oneDot = 25.4 / 300; // millimetres
constexpr int spot = 48;              // dots; a letter more or less shows in one
constexpr double likeness = 0.05;     // of two drawings of the same, spot by spot

bool IsInk(QRgb dot) {
    return qGray(dot) < 128;
}

/// What is drawn on an image's white ground.
QRect InkOf(const QImage &image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (IsInk(image.pixel(x, y))) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

/// The size that an SVG file states, in millimetres; an invalid one where it is not well formed, or its units
/// are not as high as they are wide.
QSizeF SizeOfSvg(const QByteArray &svg) {
    QXmlStreamReader xml(svg);
    QSizeF size;
    QStringList box;
    if (xml.readNextStartElement()) {
        const auto millimetres = [&](const char *name) {
            const QString length = xml.attributes().value(QLatin1String(name)).toString();
            return length.endsWith(u"mm") ? length.chopped(2).toDouble() : 0;
        };
        size = {millimetres("width"), millimetres("height")};
        box = xml.attributes().value(QLatin1String("viewBox")).toString().split(u' ');
    }
    while (!xml.atEnd()) {
        xml.readNext();
    }
    const QSizeF units(box.value(2).toDouble(), box.value(3).toDouble());
    const bool isSquare = std::abs(units.width() / size.width() - units.height() / size.height()) < 0.01;
    return !xml.hasError() && isSquare ? size : QSizeF();
}

/// A picture that other programs can take: white around its ink, true to its size, and the same in SVG.
void ExpectPicture(const QImage &image, const QByteArray &svg) {
    QCOMPARE(image.dotsPerMeterX(), dotsPerMetre);
    QCOMPARE(image.dotsPerMeterY(), dotsPerMetre);
    const QRect ink = InkOf(image);
    QVERIFY(ink.isValid() && image.rect().adjusted(8, 8, -8, -8).contains(ink));
    QVERIFY(ink.width() > 0.8 * image.width() && ink.height() > 0.6 * image.height());
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));

    const QSvgRenderer renderer(svg);
    QVERIFY(renderer.isValid());
    QVERIFY(!svg.contains("<text"));
    const QSizeF apart = SizeOfSvg(svg) - QSizeF(image.size()) / dotsPerMetre * 1000;
    QVERIFY(std::abs(apart.width()) < oneDot && std::abs(apart.height()) < oneDot);
    const QImage drawn = ImageOfSvg(svg, image.size(), Qt::white);
    QVERIFY(Difference(InSpots(image, spot), InSpots(drawn, spot)) < likeness);
}

QByteArray ContentOfFile(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class PictureTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void ChartsOfAllStylesHaveTheirSize();
    void TheWindowHasNoPartInThePicture();
    void GridsAreWhole();
    void TheMenuOpensByKeyAndCopies();
    void FilesAreSavedInBothKinds();
    void TheNextFileGoesWhereTheLastOneWent();
    void AFailureIsToldAndLeavesNothing();
    void AChartIsDraggedOut();
    void NamesOfAnyKindStandInThePicture();

private:
    /// The view of that number, with the horoscope.
    HoroscopeView &View(std::unique_ptr<HoroscopeView> view, QSize size = {800, 600}) {
        view_ = std::move(view);
        view_->resize(size);
        view_->show();
        view_->Refresh(*horoscope_);
        view_->activateWindow();
        return *view_;
    }

    ChartFrame &RasiFrame(ChartStyle style = ChartStyle::South, QSize size = {800, 600}) {
        const std::array words{"South", "East", "North"};
        horoscope_->state.preferences.ChartStyle = words.at(static_cast<std::size_t>(style));
        CalculateHoroscope(*horoscope_);
        return dynamic_cast<ChartView &>(View(std::unique_ptr<HoroscopeView>(MakeRasiView()), size))
            .Frame(horoscope_->forms.frm_rasi.VisibleFrame);
    }

    static const QMimeData *Copied(const QWidget &widget) {
        widget.findChild<QAction *>(QStringLiteral("copyPicture"))->trigger();
        return QApplication::clipboard()->mimeData();
    }

    static QByteArray SvgIn(const QMimeData &mime) { return mime.data(QStringLiteral("image/svg+xml")); }

    /// Chooses "Save Picture..." and types a name under a filter.
    static QString Save(const QWidget &widget, const QString &name, const char *filter) {
        QString suggested;
        QTimer timer;
        timer.callOnTimeout([&] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (dialog == nullptr || !dialog->isVisible()) {
                return;
            }
            timer.stop();
            auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            suggested = edit->text();
            dialog->selectNameFilter(QString::fromLatin1(filter));
            edit->setText(name);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        timer.start(10);
        widget.findChild<QAction *>(QStringLiteral("savePicture"))->trigger();
        return suggested;
    }

    QString Path(const QString &name) const { return folder_->filePath(name); }

    NoDisplay display_;
    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<store::Connection> connection_;
    std::unique_ptr<Horoscope> horoscope_;
    std::unique_ptr<HoroscopeView> view_;
};

void PictureTest::init() {
    view_.reset();
    horoscope_.reset();
    folder_ = std::make_unique<QTemporaryDir>();
    connection_ = std::make_unique<store::Connection>();
    connection_->OpenCopyInMemory(KELVARO_SEED_DATABASE);
    horoscope_ = std::make_unique<Horoscope>(*connection_, display_);
    CalculateHoroscope(*horoscope_);
}

void PictureTest::ChartsOfAllStylesHaveTheirSize() {
    for (const ChartStyle style : {ChartStyle::South, ChartStyle::East, ChartStyle::North}) {
        const ChartFrame &frame = RasiFrame(style);
        QCOMPARE(frame.Drawing().Content().style, style);
        const QMimeData *mime = Copied(frame);
        const auto image = qvariant_cast<QImage>(mime->imageData());
        QCOMPARE(image.width(), chartWidth);
        QVERIFY(style == ChartStyle::North ? image.height() > chartWidth : image.height() == chartWidth);
        ExpectPicture(image, SvgIn(*mime));
        QVERIFY(!QTest::currentTestFailed());
    }
}

void PictureTest::TheWindowHasNoPartInThePicture() {
    const QByteArray small = SvgIn(*Copied(RasiFrame(ChartStyle::East, {300, 320})));
    const QByteArray large = SvgIn(*Copied(RasiFrame(ChartStyle::East, {1600, 900})));
    QVERIFY(!small.isEmpty());
    QCOMPARE(small, large);
}

void PictureTest::GridsAreWhole() {
    // The window of the view is too small for all of them.
    for (const auto make : {MakeBhavaFeaturesView, MakePlanetPositionsView, MakeVargasView,
                            MakeAshtakavargaView, MakeDasaView}) {
        const HoroscopeView &view = View(std::unique_ptr<HoroscopeView>(make()), {250, 200});
        const QList<TextGridView *> grids = view.findChildren<TextGridView *>();
        QVERIFY(!grids.isEmpty());
        for (TextGridView *grid : grids) {
            const QMimeData *mime = Copied(*grid);
            const auto image = qvariant_cast<QImage>(mime->imageData());
            ExpectPicture(image, SvgIn(*mime));
            QVERIFY2(!QTest::currentTestFailed(), qPrintable(grid->objectName()));
            // Rows of at least 8 points, with the title and the headings.
            QVERIFY(image.height() / 300.0 * 72 > 8 * (grid->model()->rowCount() + 3));
        }
    }
}

void PictureTest::TheMenuOpensByKeyAndCopies() {
    ChartFrame &frame = RasiFrame();
    frame.setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(frame.hasFocus());
    QApplication::clipboard()->clear();
    QStringList entries;
    QTimer timer;
    timer.callOnTimeout([&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (menu == nullptr) {
            return;
        }
        timer.stop();
        for (const QAction *entry : menu->actions()) {
            entries << entry->text().remove(u'&');
        }
        QTest::keyClick(menu, Qt::Key_P);
    });
    timer.start(10);
    QTest::keyClick(&frame, Qt::Key_F10, Qt::ShiftModifier);
    QTRY_COMPARE(entries, (QStringList{"Copy as Picture", "Save Picture..."}));
    QTRY_COMPARE(QApplication::clipboard()->image().width(), chartWidth);

    const HoroscopeView &view = View(std::unique_ptr<HoroscopeView>(MakeVargasView()));
    QStringList entriesOfGrid;
    for (const QAction *entry : view.findChild<TextGridView *>()->actions()) {
        entriesOfGrid << entry->text().remove(u'&');
    }
    QCOMPARE(entriesOfGrid, (QStringList{"Copy as Table", "Copy as Picture", "Save Picture..."}));
}

void PictureTest::FilesAreSavedInBothKinds() {
    const ChartFrame &frame = RasiFrame();
    const struct {
        const char *typed, *filter, *written;
    } rows[] = {{"a", "PNG Pictures (*.png)", "a.png"},
                {"a.1", "SVG Pictures (*.svg)", "a.1.svg"},
                {"b.SVG", "PNG Pictures (*.png)", "b.SVG"}};
    for (const auto &[typed, filter, written] : rows) {
        QCOMPARE(Save(frame, Path(typed), filter), QStringLiteral("Velnesh Rasi.png"));
        const QByteArray content = ContentOfFile(Path(written));
        if (QString::fromLatin1(written).endsWith(QStringLiteral("svg"), Qt::CaseInsensitive)) {
            QCOMPARE(content, SvgIn(*Copied(frame)));
        } else {
            const QImage image = QImage::fromData(content, "PNG");
            QCOMPARE(image.width(), chartWidth);
            QCOMPARE(image.dotsPerMeterX(), dotsPerMetre);
        }
    }
    QCOMPARE(QDir(folder_->path()).entryList(QDir::Files).size(), 3);
    const HoroscopeView &view = View(std::unique_ptr<HoroscopeView>(MakeBhavaFeaturesView()));
    QCOMPARE(
        Save(*view.findChild<TextGridView *>(QStringLiteral("msh_Bhava")), Path("c"), "SVG Pictures (*.svg)"),
        QStringLiteral("Velnesh Houses and Planets.png"));
    QVERIFY(QSvgRenderer(Path("c.svg")).isValid());
}

void PictureTest::TheNextFileGoesWhereTheLastOneWent() {
    const ChartFrame &frame = RasiFrame();
    QVERIFY(FolderOfFiles(&frame) != folder_->path());
    Save(frame, Path("a"), "PNG Pictures (*.png)");
    QCOMPARE(FolderOfFiles(&frame), folder_->path());
}

void PictureTest::AFailureIsToldAndLeavesNothing() {
    const MessageBoxAnswer answer;
    const ChartFrame &frame = RasiFrame();
    const QString name(253, u'x'); // too long with its ending
    Save(frame, Path(name), "PNG Pictures (*.png)");
    QCOMPARE(answer.Count(), 1);
    QCOMPARE(answer.Icon(), QMessageBox::Critical);
    QVERIFY(QDir(folder_->path()).isEmpty());
}

void PictureTest::AChartIsDraggedOut() {
    ChartFrame &frame = RasiFrame();
    QString file;
    QStringList formats;
    int width = 0;
    int drags = 0;
    QTimer timer;
    timer.callOnTimeout([&] {
        const auto *drag = frame.findChild<QDrag *>();
        if (drag == nullptr) {
            return;
        }
        timer.stop();
        ++drags;
        formats = drag->mimeData()->formats();
        file = drag->mimeData()->urls().value(0).toLocalFile();
        width = QImage(file).width();
        QDrag::cancel();
    });
    timer.start(10);
    const QPoint middle = frame.Square().center().toPoint();
    QTest::mousePress(&frame, Qt::LeftButton, {}, middle);
    QTest::mouseMove(&frame, middle + QPoint(QApplication::startDragDistance() / 2, 0));
    QCOMPARE(drags, 0);
    QMouseEvent move(QEvent::MouseMove, middle + QPointF(100, 0), frame.mapToGlobal(middle + QPointF(100, 0)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&frame, &move);
    QCOMPARE(drags, 1);
    QVERIFY(formats.contains(QStringLiteral("image/svg+xml")));
    QVERIFY(formats.contains(QStringLiteral("application/x-qt-image")));
    QCOMPARE(QFileInfo(file).fileName(), QStringLiteral("Velnesh Rasi.png"));
    QCOMPARE(width, chartWidth);
    QVERIFY(QFile::exists(file)); // for who comes for it later
    view_.reset();
    QVERIFY(!QFileInfo(file).dir().exists());
}

void PictureTest::NamesOfAnyKindStandInThePicture() {
    for (const QString &name :
         {QStringLiteral("A & B <C> \"D\" \x01 \u202e E"), QString(3000, u'W'),
          QStringLiteral("\u05d0\u05d1"), QString(QChar(0xd800)) + QChar(0xffff), QString()}) {
        horoscope_->state.birth.ChartName = name.toStdString();
        const ChartFrame &frame = RasiFrame();
        const QMimeData *mime = Copied(frame);
        QVERIFY2(QSvgRenderer(SvgIn(*mime)).isValid(), qPrintable(name));
        QVERIFY2(SizeOfSvg(SvgIn(*mime)).isValid(), qPrintable(name));
        const QRect ink = InkOf(qvariant_cast<QImage>(mime->imageData()));
        QVERIFY(ink.left() > 8 && ink.right() < chartWidth - 8);
    }
}

QTEST_MAIN(PictureTest)
#include "PictureTest.moc"
