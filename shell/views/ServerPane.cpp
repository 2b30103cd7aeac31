#include "shell/views/ServerPane.h"

#include "drawing/ChartColours.h"
#include "drawing/ShownText.h"
#include "shell/views/PageText.h"
#include "shell/widgets/HouseIcon.h"
#include "shell/widgets/ParchmentPalette.h"

#include <QDesktopServices>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace kelvaro {

namespace {

constexpr qint64 largestPage = 65536; // bytes
constexpr int mostRedirects = 3;
constexpr qsizetype longestReason = 200; // characters; a server has a hand in it

QNetworkRequest RequestOf(const QUrl &page) {
    QNetworkRequest request(page);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // What is packed may be of any size when it is unpacked.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setRawHeader("Accept", "text/html, text/plain");
    return request;
}

QString TypeOf(const QNetworkReply &answer) {
    return answer.header(QNetworkRequest::ContentTypeHeader).toString();
}

} // namespace

ServerPane::ServerPane(const QString &name, const QString &maximize, QWidget *parent)
    : QWidget(parent), text_(new QPlainTextEdit) {
    text_->setObjectName(name);
    text_->setAccessibleName(tr("Page of the server"));
    text_->setReadOnly(true);
    text_->setUndoRedoEnabled(false);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text_->setFrameShape(QFrame::NoFrame);
    auto *button = new QPushButton(tr("^ Maximize"));
    button->setObjectName(maximize);
    button->setIcon(HouseIcon("maximize", nameColour));
    text_->setPalette(ParchmentPalette());
    button->setPalette(ParchmentPalette());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(button, 0, Qt::AlignRight);
    layout->addWidget(text_, 1);
    connect(button, &QPushButton::clicked, this, [this] {
        if (ServerAddress(page_.toString()).isValid()) {
            QDesktopServices::openUrl(page_);
        }
    });
    late_.setSingleShot(true);
    connect(&late_, &QTimer::timeout, this, [this] {
        Refuse(tr("the server takes longer than %1 seconds")
                   .arg(std::chrono::duration<double>(patience_).count()));
    });
}

/// An answer that is still on its way has nobody left to tell.
ServerPane::~ServerPane() {
    EndAnswer();
}

void ServerPane::Navigate(const QUrl &page) {
    EndAnswer();
    page_ = page;
    answer_ = network_.get(RequestOf(page));
    // One byte more than a page may have shows that it is too long; no more than that is ever held.
    answer_->setReadBufferSize(largestPage + 1);
    connect(answer_, &QNetworkReply::metaDataChanged, this, &ServerPane::LookAtHead);
    connect(answer_, &QNetworkReply::readyRead, this, &ServerPane::LookAtLength);
    connect(answer_, &QNetworkReply::finished, this, &ServerPane::ShowAnswer);
    late_.start(patience_);
}

void ServerPane::LookAtHead() {
    const bool isSentOn = answer_->attribute(QNetworkRequest::RedirectionTargetAttribute).isValid();
    if (isSentOn) {
        return; // the page that counts is yet to come
    }
    if (!IsTextPage(TypeOf(*answer_))) {
        Refuse(tr("it is no text but %1").arg(OneLine(TypeOf(*answer_), longestReason)));
    } else if (answer_->header(QNetworkRequest::ContentLengthHeader).toLongLong() > largestPage) {
        Refuse(tr("it is larger than 64 KB"));
    }
}

void ServerPane::LookAtLength() {
    if (answer_->bytesAvailable() > largestPage) {
        Refuse(tr("it is larger than 64 KB"));
    }
}

void ServerPane::ShowAnswer() {
    switch (answer_->error()) {
    case QNetworkReply::NoError:
        text_->setPlainText(TextOfPage(answer_->readAll(), TypeOf(*answer_)));
        EndAnswer();
        return;
    case QNetworkReply::InsecureRedirectError:
        Refuse(tr("the server sends on to another address"));
        return;
    default:
        Refuse(OneLine(answer_->errorString(), longestReason));
    }
}

void ServerPane::Refuse(const QString &reason) {
    EndAnswer();
    text_->setPlainText(
        tr("The page %1 cannot be shown: %2.").arg(OneLine(page_.toDisplayString(), longestReason), reason));
}

void ServerPane::EndAnswer() {
    late_.stop();
    if (QNetworkReply *answer = std::exchange(answer_, nullptr)) {
        disconnect(answer, nullptr, this, nullptr);
        answer->abort();
        answer->deleteLater();
    }
}

QUrl ServerAddress(const QString &text) {
    const QUrl address(text, QUrl::StrictMode);
    const bool isWeb =
        address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https");
    return isWeb && !address.host().isEmpty() ? address : QUrl();
}

} // namespace kelvaro
