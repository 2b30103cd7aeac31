// Reads births as JSON lines and writes the drawn horoscope of each as a PDF file into a folder. The name of
// each file is told on standard output, a birth without a horoscope on standard error, and what the pages do
// not show as it was stated; the rest goes on.

#include "drawing/FileName.h"
#include "drawing/HouseFonts.h"
#include "drawing/ShownText.h"
#include "drawing/StandIns.h"
#include "drawing/TextOf.h"
#include "drawing/WholeFile.h"
#include "horoscope/Horoscope.h"
#include "pages/HoroscopePages.h"
#include "pages/PdfFile.h"
#include "presentation/ChartStyles.h"
#include "runtime/RuntimeError.h"
#include "store/database/DatabaseFile.h"
#include "system/System.h"
#include "tools/births/BirthStream.h"

#include <QDir>
#include <QGuiApplication>
#include <QStringList>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::string_view usage =
    "usage: horoscope-pdf [--antras] [--varga-charts] [--letter] FOLDER < births.jsonl\n";

struct Wanted {
    kelvaro::PageOptions options;
    QString folder;
};

/// What the arguments ask for; nothing where they are not understood.
std::optional<Wanted> WantedBy(const QStringList &arguments) {
    Wanted wanted;
    for (const QString &argument : arguments) {
        if (argument == QLatin1String("--antras")) {
            wanted.options.antra = kelvaro::AntraSection::With;
        } else if (argument == QLatin1String("--varga-charts")) {
            wanted.options.hasVargaCharts = true;
        } else if (argument == QLatin1String("--letter")) {
            wanted.options.paper = QPageSize::Letter;
        } else if (argument.startsWith(u'-') || !wanted.folder.isEmpty()) {
            return std::nullopt;
        } else {
            wanted.folder = argument;
        }
    }
    return wanted.folder.isEmpty() ? std::nullopt : std::optional(wanted);
}

/// The place of the birth in the stream, which keeps births of one name apart, and its name.
QString FileOf(int line, const QString &chartName, const QString &folder) {
    return QDir(folder).filePath(
        QStringLiteral("%1 %2.pdf").arg(line, 4, 10, QLatin1Char('0')).arg(kelvaro::FileNameOf(chartName)));
}

/// Tells what Qt warns of, but for what it says each time that it meets letters without a font, which is told
/// in better words, and where it looks for the folders of a desktop.
void TellWarning(QtMsgType /*type*/, const QMessageLogContext & /*where*/, const QString &message) {
    const QString text = message.trimmed();
    if (!text.startsWith(QLatin1String("OpenType support missing")) &&
        !text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR"))) {
        std::cerr << "horoscope-pdf: " << text.toStdString() << '\n';
    }
}

/// What the pages of a horoscope do not show as it was stated.
std::vector<std::string> NotesOn(const kelvaro::HoroscopeState &state) {
    constexpr double anySize = 10;
    std::vector<std::string> notes;
    if (kelvaro::ChartStyleOf(state.preferences.ChartStyle) == kelvaro::ChartStyle::Unknown) {
        notes.push_back("there is no chart style \"" + state.preferences.ChartStyle +
                        "\"; the charts are left out");
    }
    for (const std::string &text : {state.birth.ChartName, state.birth.BirthCity, state.birth.BirthCountry}) {
        const QString line = kelvaro::OneLine(kelvaro::TextOf(text));
        if (kelvaro::WithStandIns(line, kelvaro::SerifFont(anySize)) != line) {
            notes.push_back("no font of this machine has all letters of \"" + line.toStdString() +
                            "\"; white squares stand for those missing");
        }
    }
    return notes;
}

/// Writes the pages of the horoscope and gives the name of their file.
QString WritePages(int line, const kelvaro::Horoscope &horoscope, const Wanted &wanted) {
    const auto goOn = [](int /*done*/, int /*count*/) { return true; };
    const auto pages =
        kelvaro::ComposePages(horoscope.state, horoscope.forms, horoscope.connection, wanted.options);
    QString file = FileOf(line, kelvaro::TextOf(horoscope.state.birth.ChartName), wanted.folder);
    kelvaro::WriteWholeFile(file, *kelvaro::PdfOf(pages, goOn));
    return file;
}

/// Whether every birth has its file.
bool WriteAll(const Wanted &wanted, std::istream &births) {
    int number = 0;
    bool isComplete = true;
    const auto tell = [&](const std::string &cause) {
        std::cerr << "horoscope-pdf: line " << number << ": " << cause << '\n';
    };
    const auto answer = [&](std::string_view line, kelvaro::Horoscope &horoscope,
                            const kelvaro::RunStatus &status) {
        ++number;
        if (const auto cause = kelvaro::ComputeBirth(line, horoscope, status)) {
            tell(*cause);
            isComplete = false;
            return true;
        }
        std::ranges::for_each(NotesOn(horoscope.state), tell);
        try {
            std::cout << WritePages(number, horoscope, wanted).toStdString() << '\n' << std::flush;
        } catch (const kelvaro::RuntimeError &error) {
            tell(error.what());
            isComplete = false;
        }
        return true;
    };
    const auto database = kelvaro::ProgramFile().parent_path() / kelvaro::store::databaseFileName;
    kelvaro::ForEachBirth(database, births, answer);
    if (!std::cout) {
        std::cerr << "horoscope-pdf: the names of the files could not be told\n";
    }
    return isComplete && std::cout;
}

} // namespace

int main(int argc, char **argv) {
    // Pages are drawn without a display; one that is there is left alone.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(TellWarning);
    kelvaro::PassBytesAsTheyAre();
    std::ios::sync_with_stdio(false);
    const QGuiApplication application(argc, argv);
    const auto wanted = WantedBy(QCoreApplication::arguments().mid(1));
    if (!wanted) {
        std::cerr << usage;
        return EXIT_FAILURE;
    }
    if (!QDir().mkpath(wanted->folder)) {
        std::cerr << "horoscope-pdf: the folder " << wanted->folder.toStdString() << " cannot be made\n";
        return EXIT_FAILURE;
    }
    try {
        return WriteAll(*wanted, std::cin) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::ios_base::failure &error) {
        std::cerr << "horoscope-pdf: the births could not be read: " << error.code().message() << '\n';
    } catch (const std::exception &error) {
        std::cerr << "horoscope-pdf: " << error.what() << '\n';
    }
    return EXIT_FAILURE;
}
