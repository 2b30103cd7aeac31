#include "tools/births/BirthStream.h"

#include "horoscope/CalculateHoroscope.h"
#include "store/database/Connection.h"
#include "tools/births/BirthLines.h"
#include "tools/births/BirthReader.h"

namespace kelvaro {

std::optional<std::string> ComputeBirth(std::string_view line, Horoscope &horoscope,
                                        const RunStatus &status) {
    try {
        ReadBirth(line, horoscope.state);
    } catch (const BirthError &error) {
        return error.what();
    }
    CalculateHoroscope(horoscope);
    return status.Failure();
}

void ForEachBirth(const std::filesystem::path &database, std::istream &births, const BirthAnswer &answer) {
    RunStatus status;
    store::Connection connection;
    connection.OpenCopyInMemory(database);
    Horoscope horoscope(connection, status);
    births.exceptions(std::ios::badbit); // a stream that cannot be read must not pass for one that has ended
    BirthLines lines(births);
    for (auto line = lines.Next(); line; line = lines.Next()) {
        // What a horoscope leaves in the database is undone, so that a batch of any length stays as small.
        const store::Transaction undone(connection);
        if (!answer(*line, horoscope, status)) {
            return;
        }
    }
}

} // namespace kelvaro
