// Reads births as JSON lines and writes the horoscope of each as one JSON line, with "--report" also as the
// text of the printed report, antras included.

#include "horoscope/CalculateHoroscope.h"
#include "horoscope/Horoscope.h"
#include "report/HoroscopeReport.h"
#include "runtime/RuntimeError.h"
#include "store/database/DatabaseFile.h"
#include "tools/horoscope-json/BirthLines.h"
#include "tools/horoscope-json/BirthReader.h"
#include "tools/horoscope-json/HoroscopeWriter.h"
#include "tools/horoscope-json/RunStatus.h"

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>

namespace {

using nlohmann::ordered_json;

ordered_json ErrorJson(const std::string &cause) {
    return {{"error", cause}};
}

ordered_json AnswerWithReport(const kelvaro::Horoscope &horoscope) {
    ordered_json answer = kelvaro::HoroscopeJson(horoscope);
    try {
        answer["report"] = kelvaro::ComposeReport(horoscope.state, horoscope.forms, horoscope.connection,
                                                  kelvaro::AntraSection::With);
    } catch (const kelvaro::RuntimeError &error) {
        return ErrorJson(std::string("Report: ").append(error.what()));
    }
    return answer;
}

ordered_json Answer(std::string_view line, bool withReport, kelvaro::Horoscope &horoscope,
                    const kelvaro::RunStatus &status) {
    try {
        kelvaro::ReadBirth(line, horoscope.state);
    } catch (const kelvaro::BirthError &error) {
        return ErrorJson(error.what());
    }
    kelvaro::CalculateHoroscope(horoscope);
    if (status.Failure()) {
        return ErrorJson(*status.Failure());
    }
    return withReport ? AnswerWithReport(horoscope) : kelvaro::HoroscopeJson(horoscope);
}

/// One program state for the whole stream, as if the births were entered one after another. The database is a
/// private copy in memory, so that a batch leaves the user's file alone.
void AnswerStream(const std::filesystem::path &database, bool withReport, std::istream &births,
                  std::ostream &answers) {
    kelvaro::RunStatus status;
    kelvaro::store::Connection connection;
    connection.OpenCopyInMemory(database);
    kelvaro::Horoscope horoscope(connection, status);
    births.exceptions(std::ios::badbit); // a stream that cannot be read must not pass for one that has ended
    kelvaro::BirthLines lines(births);
    while (answers) {
        const auto line = lines.Next();
        if (!line) {
            break;
        }
        // What a horoscope leaves in the database is undone, so that a batch of any length stays as small.
        const kelvaro::store::Transaction undone(connection);
        // An error may quote bytes of the line that are no UTF-8.
        answers << Answer(*line, withReport, horoscope, status)
                       .dump(-1, ' ', false, ordered_json::error_handler_t::replace)
                << '\n';
    }
    answers.flush();
}

} // namespace

int main(int argc, char **argv) {
    const bool withReport = argc == 2 && std::string_view(argv[1]) == "--report";
    if (argc > 1 && !withReport) {
        std::cerr << "usage: " << argv[0] << " [--report] < births.jsonl > horoscopes.jsonl\n";
        return EXIT_FAILURE;
    }
    try {
        std::ios::sync_with_stdio(false);
        const auto program = std::filesystem::canonical("/proc/self/exe");
        AnswerStream(program.parent_path() / kelvaro::store::databaseFileName, withReport, std::cin,
                     std::cout);
        if (!std::cout) {
            std::cerr << "horoscope-json: the answers could not be written\n";
            return EXIT_FAILURE;
        }
        return EXIT_SUCCESS;
    } catch (const std::ios_base::failure &error) {
        std::cerr << "horoscope-json: the births could not be read: " << error.code().message() << '\n';
        return EXIT_FAILURE;
    } catch (const std::exception &error) {
        std::cerr << "horoscope-json: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
