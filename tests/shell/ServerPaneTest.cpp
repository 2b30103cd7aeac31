#include "shell/window/MDILight.h"
#include "store/database/DatabaseFile.h"

#include <QDesktopServices>
#include <QNetworkAccessManager>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include <filesystem>
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

class ServerPaneTest : public QObject {
    Q_OBJECT

public slots:
    void TakeAddress(const QUrl &address) { opened_ << address; }

private slots:
    void init();
    void NothingIsFetchedWithoutAnAddress_data();
    void NothingIsFetchedWithoutAnAddress();
    void PagesOfTheServerStandBesideEachView();
    void ASilentServerIsTold();

private:
    void Start(const QString &address);

    QTextBrowser *Pane(const char *name) const {
        return window_->findChild<QTextBrowser *>(QString::fromLatin1(name));
    }

    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<PageServer> server_;
    std::unique_ptr<MDILight> window_;
    QList<QUrl> opened_;
};

void ServerPaneTest::init() {
    opened_.clear();
    folder_ = std::make_unique<QTemporaryDir>();
    std::filesystem::copy_file(KELVARO_SEED_DATABASE, std::filesystem::path(folder_->path().toStdString()) /
                                                          store::databaseFileName);
    server_ = std::make_unique<PageServer>();
    QVERIFY(server_->listen(QHostAddress::LocalHost));
}

void ServerPaneTest::Start(const QString &address) {
    const QString file = folder_->filePath(QStringLiteral("settings.ini"));
    QSettings(file, QSettings::IniFormat).setValue(QStringLiteral("Server/Address"), address);
    window_ = std::make_unique<MDILight>(file);
    window_->show();
    window_->Start(folder_->path().toStdString(), folder_->path().toStdString());
}

void ServerPaneTest::NothingIsFetchedWithoutAnAddress_data() {
    QTest::addColumn<QString>("address");
    QTest::newRow("none") << QString();
    QTest::newRow("a file") << QStringLiteral("file:///etc/hostname");
    QTest::newRow("no address") << QStringLiteral("127.0.0.1");
}

void ServerPaneTest::NothingIsFetchedWithoutAnAddress() {
    QFETCH(QString, address);
    Start(address);
    QCOMPARE(Pane("WebMirvaneAdds_Right"), nullptr);
    QCOMPARE(window_->findChild<QNetworkAccessManager *>(), nullptr);
}

void ServerPaneTest::PagesOfTheServerStandBesideEachView() {
    Start(QStringLiteral("http://127.0.0.1:%1/kelvaro/").arg(server_->serverPort()));
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
    Start(QStringLiteral("http://127.0.0.1:%1").arg(port));
    QTRY_VERIFY(Pane("WebMirvaneAdds_Right")->toPlainText().contains(u"cannot be shown"));
    QVERIFY(window_->findChild<QWidget *>(QStringLiteral("frm_UserDetails"))->isVisible());
}

QTEST_MAIN(ServerPaneTest)
#include "ServerPaneTest.moc"
