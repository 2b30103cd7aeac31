#include "tests/shell/MainWindowCase.h"

#include <QDesktopServices>
#include <QNetworkAccessManager>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTextBrowser>

#include <memory>

using namespace kelvaro;

/// A server on this machine that answers every request with one page and keeps the paths asked for.
class PageServer : public QTcpServer {
    Q_OBJECT

public:
    PageServer() {
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Answer(socket); });
        });
    }

    QStringList paths;

private:
    void Answer(QTcpSocket *socket) {
        paths << QString::fromLatin1(socket->readAll()).section(u' ', 1, 1);
        const QByteArray page("<p>Muhurta of the week</p><img src='/picture.png'>"
                              "<script>document.write('script ran')</script><a href='more.html'>More</a>");
        socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\nContent-Length: " +
                      QByteArray::number(page.size()) + "\r\n\r\n" + page);
        socket->disconnectFromHost();
    }
};

class ServerPaneTest : public MainWindowCase {
    Q_OBJECT

public slots:
    void TakeAddress(const QUrl &address) { opened_ << address; }

private slots:
    void init();
    void NothingIsFetchedWithoutAnAddress();
    void PagesOfTheServerStandBesideEachView();
    void ASilentServerIsTold();

private:
    void StartWith(const QString &address);

    QTextBrowser *Pane(const char *name) const { return Find<QTextBrowser>(name); }

    std::unique_ptr<PageServer> server_;
    QList<QUrl> opened_;
};

void ServerPaneTest::init() {
    opened_.clear();
    MakeFolder();
    server_ = std::make_unique<PageServer>();
    QVERIFY(server_->listen(QHostAddress::LocalHost));
}

void ServerPaneTest::StartWith(const QString &address) {
    QSettings(SettingsFile(), QSettings::IniFormat).setValue(QStringLiteral("Server/Address"), address);
    Open();
    Start();
}

void ServerPaneTest::NothingIsFetchedWithoutAnAddress() {
    for (const char *address : {"", "file:///etc/hostname", "127.0.0.1"}) {
        StartWith(QString::fromLatin1(address));
        QCOMPARE(Pane("WebMirvaneAdds_Right"), nullptr);
        QCOMPARE(window_->findChild<QNetworkAccessManager *>(), nullptr);
    }
}

void ServerPaneTest::PagesOfTheServerStandBesideEachView() {
    StartWith(QStringLiteral("http://127.0.0.1:%1/kelvaro/").arg(server_->serverPort()));
    QTextBrowser *right = Pane("WebMirvaneAdds_Right");
    QTRY_VERIFY(right->toPlainText().contains(QStringLiteral("Muhurta of the week")));
    QTRY_VERIFY(Pane("WebMirvaneAdds_Bottom")->toPlainText().contains(u"Muhurta"));
    QVERIFY(!right->toPlainText().contains(u"script"));
    // Both pages and nothing else: no pictures, and nothing for the views that have not been shown.
    QCOMPARE(server_->paths.size(), 2);
    QVERIFY(server_->paths.contains(QStringLiteral("/kelvaro/Downloads/MirvaneAdds_Right.asp")));
    QVERIFY(server_->paths.contains(QStringLiteral("/kelvaro/Downloads/MirvaneAdds_Bottom.asp")));

    QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "TakeAddress");
    auto *maximize = window_->findChild<QPushButton *>(QStringLiteral("cmdMaximize1"));
    QCOMPARE(maximize->text(), QStringLiteral("^ Maximize"));
    QTest::mouseClick(maximize, Qt::LeftButton);
    QDesktopServices::unsetUrlHandler(QStringLiteral("http"));
    QCOMPARE(opened_.size(), 1);
    QCOMPARE(opened_.front().path(), QStringLiteral("/kelvaro/Downloads/MirvaneAdds_Right.asp"));
}

void ServerPaneTest::ASilentServerIsTold() {
    const quint16 port = server_->serverPort();
    server_->close();
    StartWith(QStringLiteral("http://127.0.0.1:%1").arg(port));
    QTRY_VERIFY(Pane("WebMirvaneAdds_Right")->toPlainText().contains(u"cannot be shown"));
    QVERIFY(window_->findChild<QWidget *>(QStringLiteral("frm_UserDetails"))->isVisible());
}

QTEST_MAIN(ServerPaneTest)
#include "ServerPaneTest.moc"
