#pragma once

#include "horoscope/CalculateHoroscope.h"
#include "horoscope/Horoscope.h"
#include "horoscope/NoDisplay.h"
#include "horoscope/StatusDisplay.h"
#include "shell/print/PrintView.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

namespace kelvaro {

inline QByteArray ContentOfFile(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

inline qsizetype SheetsIn(const QByteArray &pdf) {
    return pdf.count("/Type /Page\n");
}

/// The print view of the sample birth, with a folder for what it writes.
class PrintViewCase : public QObject {
protected:
    void Open() {
        view_.reset();
        horoscope_.reset();
        folder_ = std::make_unique<QTemporaryDir>();
        // The dialogs start in a home without the files of whoever runs the tests.
        qputenv("HOME", home_.path().toLocal8Bit());
        connection_ = std::make_unique<store::Connection>();
        connection_->OpenCopyInMemory(KELVARO_SEED_DATABASE);
        horoscope_ = std::make_unique<Horoscope>(*connection_, display_);
        CalculateHoroscope(*horoscope_);
        view_ = std::make_unique<PrintView>();
        view_->resize(1000, 700);
        view_->show();
        view_->Refresh(*horoscope_);
    }

    QString Path(const QString &name) const { return folder_->filePath(name); }
    QTextEdit *Te() const { return view_->findChild<QTextEdit *>(QStringLiteral("Te")); }
    template <class Part = QWidget> Part *Find(const char *name) const {
        return view_->findChild<Part *>(QString::fromLatin1(name));
    }
    void Choose(const char *option) const { Find<QRadioButton>(option)->click(); }

    /// Presses a button and works in the dialogs that come up, one after the other.
    void Press(std::vector<std::function<void(QDialog &)>> works, const char *button = "CoPrt") const {
        std::size_t done = 0;
        QTimer timer;
        timer.callOnTimeout([&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (dialog == nullptr || !dialog->isVisible() || qobject_cast<QMessageBox *>(dialog) != nullptr) {
                return;
            }
            if (done < works.size()) {
                works.at(done++)(*dialog);
            } else {
                ++done; // a dialog too many
                dialog->reject();
            }
        });
        timer.start(10);
        QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton);
        QCOMPARE(done, works.size());
    }

    /// Types a name into the save dialog.
    static auto Typing(const QString &name) {
        return [name](QDialog &dialog) {
            QCOMPARE(dialog.objectName(), QStringLiteral("CD"));
            auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            edit->setText(name);
            QTest::keyClick(edit, Qt::Key_Return);
        };
    }

    /// Prints all pages into a file, in the print dialog.
    static auto PrintingTo(const QString &file, const std::function<void(QDialog &)> &choose) {
        return [file, choose](QDialog &dialog) {
            QVERIFY(qobject_cast<QPrintDialog *>(&dialog) != nullptr);
            auto *printers = dialog.findChild<QComboBox *>(QStringLiteral("printers"));
            printers->setCurrentIndex(printers->findText(QStringLiteral("PDF"), Qt::MatchContains));
            QFile::remove(file); // the dialog would ask whether to replace it
            dialog.findChild<QLineEdit *>(QStringLiteral("filename"))->setText(file);
            choose(dialog);
            dialog.accept();
        };
    }

    static void Cancel(QDialog &dialog) { dialog.reject(); }

    NoDisplay display_;
    QTemporaryDir home_;
    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<store::Connection> connection_;
    std::unique_ptr<Horoscope> horoscope_;
    std::unique_ptr<PrintView> view_;
};

} // namespace kelvaro
