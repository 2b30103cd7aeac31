#pragma once

#include "report/HoroscopeReport.h"
#include "shell/views/HoroscopeView.h"
#include "shell/views/ViewHeading.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <string>

namespace kelvaro {

class ReportBox;
struct ReportFileKind;

/// The window that composes the report and brings it into a text file, into an HTML file or to a printer.
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

private:
    void LayOut();
    AntraSection Antra() const;
    void Print();
    void Compose();
    void SaveAs(const ReportFileKind &kind);
    void PrintOut();
    void TellFile(const QString &name);

    const Horoscope *horoscope_ = nullptr;
    std::string report_;

    ViewHeading *heading_;
    QRadioButton *Op2_; ///< without antra
    QRadioButton *Op1_; ///< with antra
    QRadioButton *Op4_; ///< text file
    QRadioButton *Op3_; ///< HTML file
    QRadioButton *Op5_; ///< printer
    QPushButton *CoPrt_;
    QLabel *outcome_;
    QWidget *options_;
    ReportBox *Te_;
};

} // namespace kelvaro
