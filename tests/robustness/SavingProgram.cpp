// A copy of the program that saves charts in the database of the folder that it is started in.
// usage: kelvaro_saving_program pairs NUMBER
//            saves pairs of charts from that number on until it is killed, and adds a byte to the file
//            "saved" for each new chart
//        kelvaro_saving_program charts NAME COUNT
//            saves so many charts of that name and changes each at once, computing a horoscope now and then

#include "horoscope/Horoscope.h"
#include "horoscope/entry/BirthStorage.h"
#include "store/database/DatabaseFile.h"
#include "tests/horoscope/EnteredBirth.h"
#include "tests/horoscope/MemorySettings.h"
#include "tests/horoscope/RecordingDisplay.h"
#include "tests/robustness/ChartPairs.h"

#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <span>
#include <string>

namespace kelvaro {
namespace {

class SavingProgram {
public:
    SavingProgram() {
        connection_.Open(store::databaseFileName);
        entered_ = EnteredBirth(store::PlaceLists(connection_), horoscope_.state);
    }

    [[noreturn]] void SavePairs(int number) {
        std::ofstream saved("saved");
        for (;; ++number) {
            SaveChartPair(number, entered_, connection_, settings_, [&] { saved.put('.').flush(); });
        }
    }

    void SaveCharts(const std::string &name, int count) {
        constexpr int betweenHoroscopes = 20;
        for (int chart = 0; chart < count; ++chart) {
            BirthFields fields = entered_;
            fields.Txt_VC_ChartName = name + std::to_string(chart);
            SaveUntilTaken(fields);
            fields.cbMins = std::to_string(chart);
            SaveUntilTaken(fields);
            if (chart % betweenHoroscopes == 0) {
                AcceptBirth(fields, horoscope_);
            }
        }
    }

private:
    /// Another copy may keep the database for longer than is waited for.
    void SaveUntilTaken(BirthFields &fields) {
        constexpr int mostTries = 20;
        for (int tries = 1;; ++tries) {
            try {
                SaveBirth(fields, connection_, settings_);
                return;
            } catch (const store::StoreError &error) {
                if (std::string(error.what()).find("is locked by another program") == std::string::npos ||
                    tries == mostTries) {
                    throw;
                }
            }
        }
    }

    store::Connection connection_;
    RecordingDisplay display_;
    Horoscope horoscope_{connection_, display_};
    MemorySettings settings_;
    BirthFields entered_;
};

} // namespace
} // namespace kelvaro

int main(int argc, char **argv) {
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    try {
        kelvaro::SavingProgram program;
        if (arguments.size() == 3 && std::string(arguments[1]) == "pairs") {
            program.SavePairs(std::stoi(arguments[2]));
        }
        if (arguments.size() == 4 && std::string(arguments[1]) == "charts") {
            program.SaveCharts(arguments[2], std::stoi(arguments[3]));
            return EXIT_SUCCESS;
        }
        std::cerr << "kelvaro_saving_program: the arguments are not understood\n";
    } catch (const std::exception &error) {
        std::cerr << "kelvaro_saving_program: " << error.what() << '\n';
    }
    return EXIT_FAILURE;
}
