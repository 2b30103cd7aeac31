#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPlainTextEdit>
#include <QTimer>
#include <QUrl>

#include <chrono>

namespace kelvaro {

/// A pane beside a view that shows what a page of the user's server says, as plain text. Nothing that the
/// page refers to is fetched, and no page of another server.
class ServerPane : public QWidget {
public:
    /// `maximize` is the object name of the button that opens the present page in the system's browser.
    ServerPane(const QString &name, const QString &maximize, QWidget *parent = nullptr);
    ServerPane(const ServerPane &) = delete;
    ServerPane &operator=(const ServerPane &) = delete;
    ~ServerPane() override;

    /// Fetches a page. Where it does not come, is no text or is longer than 64 KB, the pane says so.
    void Navigate(const QUrl &page);

    /// How long a page may take in all; ten seconds unless told otherwise.
    void SetPatience(std::chrono::milliseconds patience) { patience_ = patience; }

private:
    void LookAtHead();
    void LookAtLength();
    void ShowAnswer();
    void Refuse(const QString &reason);
    void EndAnswer();

    QNetworkAccessManager network_;
    QNetworkReply *answer_ = nullptr; ///< of the page that is on its way
    QTimer late_;
    std::chrono::milliseconds patience_{10000};
    QPlainTextEdit *text_;
    QUrl page_;
};

/// The address of the user's server that pages come from; not valid where the text is no web address.
QUrl ServerAddress(const QString &text);

} // namespace kelvaro
