// Reads births as JSON lines and writes the horoscope of each as one JSON line, with "--report" also as the
// text of the printed report, antras included. With "--check-zones" each line tells the clocks of the
// birthplace beside the offset that was stated.

#include "horoscope/Horoscope.h"
#include "report/HoroscopeReport.h"
#include "runtime/RuntimeError.h"
#include "store/database/DatabaseFile.h"
#include "system/System.h"
#include "tools/births/BirthReader.h"
#include "tools/births/BirthStream.h"
#include "tools/horoscope-json/HoroscopeWriter.h"
#include "tools/horoscope-json/ZoneCheckWriter.h"

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
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

enum class Wanted { Horoscope, Report, ZoneCheck };

ordered_json ZoneCheck(std::string_view line, kelvaro::Horoscope &horoscope) {
    try {
        kelvaro::ReadBirth(line, horoscope.state);
        return kelvaro::ZoneCheckJson(horoscope.state, horoscope.connection);
    } catch (const kelvaro::BirthError &error) {
        return ErrorJson(error.what());
    } catch (const kelvaro::RuntimeError &error) {
        return ErrorJson(error.what());
    }
}

ordered_json Answer(std::string_view line, Wanted wanted, kelvaro::Horoscope &horoscope,
                    const kelvaro::RunStatus &status) {
    if (wanted == Wanted::ZoneCheck) {
        return ZoneCheck(line, horoscope);
    }
    if (const auto cause = kelvaro::ComputeBirth(line, horoscope, status)) {
        return ErrorJson(*cause);
    }
    return wanted == Wanted::Report ? AnswerWithReport(horoscope) : kelvaro::HoroscopeJson(horoscope);
}

/// What the arguments ask for; nothing where they are not understood.
std::optional<Wanted> WantedBy(int argc, char **argv) {
    if (argc == 1) {
        return Wanted::Horoscope;
    }
    const std::string_view option = argc == 2 ? argv[1] : "";
    if (option == "--report") {
        return Wanted::Report;
    }
    return option == "--check-zones" ? std::optional(Wanted::ZoneCheck) : std::nullopt;
}

void AnswerStream(const std::filesystem::path &database, Wanted wanted, std::istream &births,
                  std::ostream &answers) {
    const auto answer = [&](std::string_view line, kelvaro::Horoscope &horoscope,
                            const kelvaro::RunStatus &status) {
        // An error may quote bytes of the line that are no UTF-8.
        answers << Answer(line, wanted, horoscope, status)
                       .dump(-1, ' ', false, ordered_json::error_handler_t::replace)
                << '\n';
        return static_cast<bool>(answers);
    };
    kelvaro::ForEachBirth(database, births, answer);
    answers.flush();
}

} // namespace

int main(int argc, char **argv) {
    const auto wanted = WantedBy(argc, argv);
    if (!wanted) {
        std::cerr << "usage: horoscope-json [--report | --check-zones] < births.jsonl > answers.jsonl\n";
        return EXIT_FAILURE;
    }
    try {
        kelvaro::PassBytesAsTheyAre();
        std::ios::sync_with_stdio(false);
        AnswerStream(kelvaro::ProgramFile().parent_path() / kelvaro::store::databaseFileName, *wanted,
                     std::cin, std::cout);
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
