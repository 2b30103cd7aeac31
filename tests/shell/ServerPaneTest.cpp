#include "shell/views/ServerPane.h"

#include "tests/shell/Heartbeat.h"
#include "tests/shell/MainWindowCase.h"

#include <QDesktopServices>
#include <QNetworkAccessManager>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>

#include <memory>

using namespace kelvaro;

namespace {

QByteArray Answer(const QByteArray &type, const QByteArray &page) {
    return "HTTP/1.1 200 OK\r\nContent-Type: " + type +
           "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(page.size()) + "\r\n\r\n" + page;
}

/// So long may a test machine that does other things as well hold a window that a text does not hold.
constexpr qint64 longestHold = 500; // milliseconds

} // namespace

/// A server on this machine that gives every request one answer and keeps the paths asked for.
class PageServer : public QTcpServer {
    Q_OBJECT

public:
    PageServer() {
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Serve(socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this] { ++ended; });
        });
    }

    QByteArray answer =
        Answer("text/html", "<p>Muhurta of the week</p><img src='/picture.png'>"
                            "<script>document.write('script ran')</script><a href='more.html'>More</a>");
    QByteArray drip;  ///< sent again and again after the answer, for ever
    int interval = 0; ///< between two drips, in milliseconds
    QStringList paths;
    int ended = 0; ///< connections

private:
    void Serve(QTcpSocket *socket) {
        paths << QString::fromLatin1(socket->readAll()).section(u' ', 1, 1);
        socket->write(answer);
        if (drip.isEmpty()) {
            socket->disconnectFromHost();
            return;
        }
        auto *tap = new QTimer(socket);
        tap->callOnTimeout(socket, [this, socket] {
            if (socket->isOpen() && socket->bytesToWrite() < 1000000) {
                socket->write(drip);
            }
        });
        tap->start(interval);
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
    void HostilePagesHoldNothing_data();
    void HostilePagesHoldNothing();
    void AnEndedPaneEndsItsConnection();

private:
    void StartWith(const QString &address);

    QPlainTextEdit *Pane(const char *name) const { return Find<QPlainTextEdit>(name); }

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
    QPlainTextEdit *right = Pane("WebMirvaneAdds_Right");
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

void ServerPaneTest::HostilePagesHoldNothing_data() {
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QByteArray>("drip");
    QTest::addColumn<int>("interval");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const QByteArray &answer, const char *shown,
                        const QByteArray &drip = {}, int interval = 0) {
        QTest::newRow(name) << answer << drip << interval << QString::fromUtf8(shown);
    };
    const auto sentOn = [](const QByteArray &address) {
        return "HTTP/1.1 302 Found\r\nLocation: " + address + "\r\nContent-Length: 0\r\n\r\n";
    };
    const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n";
    row("nested tables", Answer("text/html", QByteArray("<table><tr><td>").repeated(20) + "deep"), "^deep$");
    row("a thousand of them", Answer("text/html", QByteArray("<table><tr><td>").repeated(4000) + "deep"),
        "^deep$");
    row("one long word", Answer("text/html", QByteArray(65000, 'w')), "^w{1000}\nw");
    row("a line a letter", Answer("text/plain", QByteArray("a\n").repeated(32500)),
        "^(a\n){1000}\u2026 The page");
    row("other ends of lines", Answer("text/plain", QByteArray("a\u2029").repeated(16000)),
        "^(a\n){1000}\u2026 The page");
    row("marks on one letter", Answer("text/plain", "a" + QByteArray("\u0301").repeated(32000)),
        "^a\u0301{8}$");
    row("all scripts",
        Answer("text/plain",
               [] {
                   QString letters;
                   for (char16_t letter = 0x20; letter < 0x5000; ++letter) {
                       letters += QChar(letter);
                   }
                   return letters.toUtf8();
               }()),
        "!");
    row("comments and quotes that do not end",
        Answer("text/html", "a<b title=\"" + QByteArray("<!--").repeated(16000)), "^a$");
    row("NULs and turned directions", Answer("text/plain", QByteArray("gold\0 \xe2\x80\xae dlog", 14)),
        "^gold  dlog$");
    row("entities", Answer("text/html", "1 &lt; 2 &amp; &#2360;&#x1F600; &#xD800; &nosuch;"),
        "^1 < 2 & \u0938\U0001F600 &#xD800; &nosuch;$");
    row("no text", Answer("image/png", "\x89PNG"), "no text but image/png");
    row("too long", Answer("text/html", QByteArray(70000, 'w')), "larger than 64 KB");
    row("too long, length not told", head + "\r\n", "larger than 64 KB", QByteArray(100000, 'w'));
    row("head without an end", head, "cannot be shown", QByteArray(1000, 'h') + ": x\r\n");
    row("a byte at a time", head + "\r\n", "longer than 0.7 seconds", "w", 50);
    row("shorter than told", head + "Content-Length: 5000\r\n\r\nshort", "cannot be shown");
    row("no HTTP", "220 mail.example ESMTP\r\n", "cannot be shown");
    row("another host", sentOn("http://127.0.0.2:9/page"), "sends on to another address");
    row("a file", sentOn("file:///etc/hostname"), "cannot be shown");
    row("itself", sentOn("/again"), "cannot be shown");
    row("an error in a long word", "HTTP/1.1 500 " + QByteArray(300000, 'e') + "\r\n\r\n", "cannot be shown");
}

void ServerPaneTest::HostilePagesHoldNothing() {
    QFETCH(const QByteArray, answer);
    QFETCH(const QByteArray, drip);
    QFETCH(const int, interval);
    QFETCH(const QString, shown);
    server_->answer = answer;
    server_->drip = drip;
    server_->interval = interval;
    ServerPane pane(QStringLiteral("pane"), QStringLiteral("maximize"));
    pane.SetPatience(std::chrono::milliseconds(700));
    pane.resize(300, 200);
    pane.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pane));
    const auto *text = pane.findChild<QPlainTextEdit *>(QStringLiteral("pane"));
    Heartbeat heart;
    pane.Navigate(QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(server_->serverPort())));
    QTRY_VERIFY(!text->toPlainText().isEmpty());
    pane.resize(250, 220);
    QTest::qWait(50);
    const qint64 hold = heart.LongestHold();
    qInfo("held for %lld ms", hold);
    QVERIFY2(hold < longestHold, QByteArray::number(hold));
    QVERIFY2(text->toPlainText().contains(QRegularExpression(shown)),
             qPrintable(text->toPlainText().left(300)));
    QVERIFY(server_->paths.size() <= 4);
}

void ServerPaneTest::AnEndedPaneEndsItsConnection() {
    server_->answer = "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n";
    server_->drip = "w";
    server_->interval = 10;
    StartWith(QStringLiteral("http://127.0.0.1:%1").arg(server_->serverPort()));
    QTRY_COMPARE(server_->paths.size(), 2);
    window_.reset();
    QTRY_COMPARE(server_->ended, 2);
}

QTEST_MAIN(ServerPaneTest)
#include "ServerPaneTest.moc"
