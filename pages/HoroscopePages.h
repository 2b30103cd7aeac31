#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "pages/Page.h"
#include "report/HoroscopeReport.h"
#include "store/database/Connection.h"

#include <QPageSize>
#include <QPainter>
#include <QSizeF>
#include <QString>

#include <vector>

namespace kelvaro {

/// What the drawn horoscope has beside what it always has, and the paper that it is set for.
struct PageOptions {
    AntraSection antra = AntraSection::Without;
    bool hasVargaCharts = false; ///< the twenty-one divisional charts, drawn, on two pages
    QPageSize::PageSizeId paper = QPageSize::A4;
};

/// The pages of a drawn horoscope, composed once and painted as often as wanted: on the screen, on a printer,
/// in a file. Sizes are in points; a page stands upright.
class HoroscopePages {
public:
    HoroscopePages(QSizeF paper, QString title, QString author, std::vector<Page> pages);

    int Count() const { return static_cast<int>(pages_.size()); }
    QSizeF Paper() const { return paper_; }
    /// For the properties of a document: whose horoscope it is, and who made it.
    const QString &Title() const { return title_; }
    const QString &Author() const { return author_; }

    /// Paints a page, counted from 0, whole: the painter's origin is the upper left corner of the paper, its
    /// device may have any resolution.
    void Paint(int page, QPainter &painter) const;

private:
    QSizeF paper_;
    QString title_;
    QString author_;
    std::vector<Page> pages_;
};

/// Composes the pages from what the record and the views hold; what the owner's letterhead holds is read from
/// the database. Raises StoreError when it cannot be read.
HoroscopePages ComposePages(const HoroscopeState &state, const HoroscopeForms &forms,
                            store::Connection &connection, const PageOptions &options);

} // namespace kelvaro
