// Reads births as JSON lines and writes the horoscope of each as one JSON line.

#include "horoscope/CalculateHoroscope.h"
#include "horoscope/Horoscope.h"
#include "store/DatabaseFile.h"
#include "tools/horoscope-json/BirthReader.h"
#include "tools/horoscope-json/HoroscopeWriter.h"
#include "tools/horoscope-json/RunStatus.h"

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

namespace {

using nlohmann::ordered_json;

ordered_json ErrorJson(const std::string &cause) {
    return {{"error", cause}};
}

ordered_json Answer(const std::string &line, kelvaro::Horoscope &horoscope,
                    const kelvaro::RunStatus &status) {
    try {
        kelvaro::ReadBirth(line, horoscope.state);
    } catch (const kelvaro::BirthError &error) {
        return ErrorJson(error.what());
    }
    kelvaro::CalculateHoroscope(horoscope);
    return status.Failure() ? ErrorJson(*status.Failure()) : kelvaro::HoroscopeJson(horoscope);
}

/// One program state for the whole stream, as if the births were entered one after another. The database is a
/// private copy in memory, so that a batch leaves the user's file alone.
void AnswerStream(const std::filesystem::path &database, std::istream &births, std::ostream &answers) {
    kelvaro::RunStatus status;
    kelvaro::store::Connection connection;
    connection.OpenCopyInMemory(database);
    kelvaro::Horoscope horoscope(connection, status);
    std::string line;
    while (answers && std::getline(births, line)) {
        // An error may quote bytes of the line that are no UTF-8.
        answers
            << Answer(line, horoscope, status).dump(-1, ' ', false, ordered_json::error_handler_t::replace)
            << '\n';
    }
    answers.flush();
}

} // namespace

int main(int argc, char **argv) {
    if (argc > 1) {
        std::cerr << "usage: " << argv[0] << " < births.jsonl > horoscopes.jsonl\n";
        return EXIT_FAILURE;
    }
    try {
        std::ios::sync_with_stdio(false);
        const auto program = std::filesystem::canonical("/proc/self/exe");
        AnswerStream(program.parent_path() / kelvaro::store::databaseFileName, std::cin, std::cout);
        if (!std::cout) {
            std::cerr << "horoscope-json: the answers could not be written\n";
            return EXIT_FAILURE;
        }
        return EXIT_SUCCESS;
    } catch (const std::exception &error) {
        std::cerr << "horoscope-json: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
