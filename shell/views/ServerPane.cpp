#include "shell/views/ServerPane.h"

#include <QDesktopServices>
#include <QPushButton>
#include <QVBoxLayout>

namespace kelvaro {

namespace {

constexpr int patience = 10000; // milliseconds
constexpr qint64 largestPage = 1 << 20;

/// A browser of one page: what the page refers to is not fetched, from nowhere.
class PageBrowser : public QTextBrowser {
protected:
    QVariant loadResource(int /*type*/, const QUrl & /*name*/) override { return {}; }
};

} // namespace

ServerPane::ServerPane(const QString &name, const QString &maximize, QWidget *parent)
    : QWidget(parent), browser_(new PageBrowser) {
    browser_->setObjectName(name);
    browser_->setOpenLinks(false);
    browser_->setFrameShape(QFrame::NoFrame);
    auto *button = new QPushButton(tr("^ Maximize"));
    button->setObjectName(maximize);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(button, 0, Qt::AlignRight);
    layout->addWidget(browser_, 1);
    const auto openOutside = [](const QUrl &page) {
        if (ServerAddress(page.toString()).isValid()) {
            QDesktopServices::openUrl(page);
        }
    };
    connect(button, &QPushButton::clicked, this, [this, openOutside] { openOutside(page_); });
    connect(browser_, &QTextBrowser::anchorClicked, this,
            [this, openOutside](const QUrl &link) { openOutside(page_.resolved(link)); });
}

void ServerPane::Navigate(const QUrl &page) {
    if (answer_ != nullptr) {
        answer_->abort();
    }
    page_ = page;
    QNetworkRequest request(page);
    request.setTransferTimeout(patience);
    QNetworkReply *answer = network_.get(request);
    answer_ = answer;
    connect(answer, &QNetworkReply::downloadProgress, answer, [answer](qint64 received) {
        if (received > largestPage) {
            answer->abort();
        }
    });
    connect(answer, &QNetworkReply::finished, this, [this, answer] {
        ShowAnswer(answer);
        answer->deleteLater();
    });
}

void ServerPane::ShowAnswer(QNetworkReply *answer) {
    if (answer != answer_) {
        return; // another page is wanted by now
    }
    if (answer->error() != QNetworkReply::NoError) {
        browser_->setPlainText(
            tr("The page %1 cannot be shown: %2").arg(page_.toDisplayString(), answer->errorString()));
        return;
    }
    browser_->setHtml(QString::fromUtf8(answer->readAll()));
}

QUrl ServerAddress(const QString &text) {
    const QUrl address(text, QUrl::StrictMode);
    const bool isWeb =
        address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https");
    return isWeb && !address.host().isEmpty() ? address : QUrl();
}

} // namespace kelvaro
