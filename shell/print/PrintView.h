#pragma once

#include "pages/HoroscopePages.h"
#include "shell/print/DirectPrint.h"
#include "shell/views/HoroscopeView.h"
#include "shell/views/ViewHeading.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <memory>
#include <optional>
#include <string>

namespace kelvaro {

class PagePreview;
class ReportBox;
struct ReportFileKind;

/// The window that composes the report and brings it into a text file, into an HTML file or to a printer; or
/// that draws the horoscope's pages, shows them, and brings them into a PDF file or to a printer.
class PrintView : public HoroscopeView {
public:
    explicit PrintView(QWidget *parent = nullptr);

    /// Shows whose horoscope can be printed. It is read again each time the button is pressed, so it must
    /// stay where it is. The report of an earlier horoscope goes away.
    void Refresh(const Horoscope &horoscope) override;

    /// The report as it was composed last.
    const std::string &Report() const { return report_; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void PlaceParts();
    void LayOut();
    AntraSection Antra() const;
    QPageSize::PageSizeId Paper() const;
    bool IsPdf() const { return Op6_->isChecked(); }
    QString ChartName() const;

    void Print();
    void Compose();
    void SaveAs(const ReportFileKind &kind);
    void Tell(const std::optional<PrintOutcome> &outcome);
    void TellFile(const QString &name);
    void TellNothing();

    void ChooseOutput();
    void PagesAreStale();
    void ComposeAllPages();
    void SavePdf();
    void PrintPages();

    const Horoscope *horoscope_ = nullptr;
    std::string report_;
    std::shared_ptr<const HoroscopePages> pages_; ///< none where they are stale or could not be composed
    QTimer composing_;                            ///< at the end of what changes the options

    ViewHeading *heading_;
    QRadioButton *Op2_; ///< without antra
    QRadioButton *Op1_; ///< with antra
    QCheckBox *vargaCharts_;
    QComboBox *paper_;
    QRadioButton *Op4_; ///< text file
    QRadioButton *Op3_; ///< HTML file
    QRadioButton *Op5_; ///< printer
    QRadioButton *Op6_; ///< PDF file
    QPushButton *CoPrt_;
    QLabel *outcome_;
    QWidget *options_;
    ReportBox *Te_;
    PagePreview *preview_;
};

} // namespace kelvaro
