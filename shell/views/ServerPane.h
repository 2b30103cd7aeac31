#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QTextBrowser>
#include <QUrl>

namespace kelvaro {

/// A pane beside a view that shows a page of the user's server, text and layout only: no scripts, no pictures
/// and no further pages are fetched.
class ServerPane : public QWidget {
public:
    /// `maximize` is the object name of the button that opens the present page in the system's browser.
    ServerPane(const QString &name, const QString &maximize, QWidget *parent = nullptr);

    /// Fetches a page. Where that fails, the pane says why.
    void Navigate(const QUrl &page);

private:
    void ShowAnswer(QNetworkReply *answer);

    QNetworkAccessManager network_;
    QPointer<QNetworkReply> answer_; ///< of the page that is on its way
    QTextBrowser *browser_;
    QUrl page_;
};

/// The address of the user's server that pages come from; not valid where the text is no web address.
QUrl ServerAddress(const QString &text);

} // namespace kelvaro
