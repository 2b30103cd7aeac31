#include "store/database/FaultTexts.h"

#include "runtime/Paths.h"
#include "runtime/Texts.h"
#include "store/database/Dialect.h"
#include "store/database/FolderAccess.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>

namespace kelvaro::store {

namespace {

/// A table as the user knows it, and what a fault in it leaves to be done.
struct Subject {
    std::string_view table, rows, stillWorks;
    bool isOneRow = false;
};

constexpr std::string_view chartStays = "The chart on the screen can still be read and printed. ";
constexpr std::string_view viewsAreRight = "The views that are filled are right. ";
constexpr std::string_view chartsAreSound = "The saved charts are not touched by this. ";

constexpr std::array<Subject, 12> subjects{{
    {"ChartSave", "the saved charts", "Births can still be entered and computed. "},
    {"GChartSave", "the saved couples", "Everything else still works. "},
    {"Country_Master", "the countries", chartStays},
    {"City_Master", "the cities", chartStays},
    {"CityZone", "the clocks of the cities", "Everything else still works. "},
    {"TimeZone", "the time zones", chartStays},
    {"Preference", "the preferences", chartsAreSound, true},
    {"PersonalDetails", "the letterhead", chartsAreSound, true},
    {"KaliyugaYearDetails", "the years of the calendar", viewsAreRight},
    {"chartsmaster", "the divisional charts", viewsAreRight},
    {"tempBhukthi", "the record of bhuktis", viewsAreRight},
    {"tempdasasandhi", "the drawings of the report", viewsAreRight, true},
}};

constexpr Subject anyTable{"", "the tables", "", true};

const Subject &SubjectOf(std::string_view statement) {
    const std::string table = TableOf(statement);
    const auto *const found = std::ranges::find_if(
        subjects, [&table](const Subject &each) { return SameIgnoringCase(each.table, table); });
    return found == subjects.end() ? anyTable : *found;
}

std::string WithDetails(std::string text, std::string_view details) {
    return text.append("Details: ").append(OneLine(details)).append(".");
}

std::string Advice(const std::filesystem::path &file) {
    return "Put a backup copy of the database file " + TextOfPath(file) + " in its place. ";
}

std::string FileIsDamaged(const std::filesystem::path &file, std::string_view how) {
    std::string text = "The database file " + TextOfPath(file);
    return text.append(how).append(" Put a backup copy of it in its place.");
}

} // namespace

std::string InWords(const SQLite::Exception &error, const std::filesystem::path &file,
                    std::string_view statement) {
    constexpr const char *writeProtected = " or its folder is write-protected: nothing can be stored.";
    const std::string theFile = "The database file " + TextOfPath(file);
    constexpr int primaryCode = 0xff;
    switch (error.getErrorCode() & primaryCode) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return theFile + " is locked by another program. Try again when that program is done with it.";
    case SQLITE_READONLY:
        return theFile + writeProtected;
    case SQLITE_NOTADB:
        return FileIsDamaged(file, " is damaged or no database.");
    case SQLITE_CORRUPT:
        return WithDetails(FileIsDamaged(file, " is damaged.") + " ", error.what());
    case SQLITE_CANTOPEN:
        // Not every system tells SQLite why it cannot make the journal of a change beside the file.
        if (!statement.empty() && !CanWriteInto(file.parent_path())) {
            return theFile + writeProtected;
        }
        return WithDetails(theFile + " cannot be opened. ", error.what());
    case SQLITE_FULL:
        return "There is no room left on the disk of " + TextOfPath(file) +
               ": nothing was stored. Make room and try again.";
    case SQLITE_IOERR:
        return WithDetails(theFile + " cannot be read or written. Look whether its disk is full or gone. ",
                           error.what());
    default:
        return TableIsDamaged(statement, file, error.what());
    }
}

std::string TableIsDamaged(std::string_view statement, const std::filesystem::path &file,
                           std::string_view details) {
    const Subject &subject = SubjectOf(statement);
    std::string text = "The database is damaged where it keeps ";
    text.append(subject.rows).append(". ").append(subject.stillWorks).append(Advice(file));
    return WithDetails(text, details);
}

std::string RowIsDamaged(std::string_view statement, const std::filesystem::path &file,
                         std::string_view details) {
    const Subject &subject = SubjectOf(statement);
    if (subject.isOneRow) {
        return TableIsDamaged(statement, file, details);
    }
    std::string text = "One of ";
    text.append(subject.rows).append(" in the database is damaged. The others can still be used. ");
    text.append("Enter it anew; a backup copy of the database file ").append(TextOfPath(file));
    return WithDetails(text.append(" may have it as it was. "), details);
}

std::string RowHasGone(std::string_view statement, const std::filesystem::path &file) {
    const Subject &subject = SubjectOf(statement);
    if (subject.isOneRow) {
        return TableIsDamaged(statement, file, "there is no row");
    }
    std::string text = "What is asked for is no longer among ";
    return text.append(subject.rows).append(" in the database. Choose it anew.");
}

std::string RowsLeftOut(std::string_view statement, std::size_t count, std::string_view details) {
    std::string text = "Left out: " + std::to_string(count) + " of ";
    text.append(SubjectOf(statement).rows).append(" in the database cannot be read. ");
    return WithDetails(text, details);
}

} // namespace kelvaro::store
