#include "store/database/MemoryCopy.h"

#include "runtime/Paths.h"
#include "runtime/Texts.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <string>
#include <vector>

namespace kelvaro::store {

namespace {

/// Makes the tables and indices of the file in memory; returns the names of the tables.
std::vector<std::string> CopySchema(SQLite::Database &database) {
    std::vector<std::string> tables;
    std::vector<std::string> definitions;
    {
        SQLite::Statement schema(database, "select type, name, sql from source.sqlite_schema "
                                           "where type in ('table', 'index') and name not like 'sqlite\\_%' "
                                           "escape '\\' order by type = 'index'");
        while (schema.executeStep()) {
            if (schema.getColumn(0).getString() == "table") {
                tables.push_back(schema.getColumn(1).getString());
            }
            definitions.push_back(schema.getColumn(2).getString());
        }
    }
    for (const std::string &definition : definitions) {
        database.exec(definition);
    }
    return tables;
}

/// The next numbers of the automatic keys: above those of deleted rows too.
void CopyKeyCounters(SQLite::Database &database) {
    database.exec("delete from main.sqlite_sequence");
    database.exec("insert into main.sqlite_sequence select * from source.sqlite_sequence");
}

} // namespace

std::unique_ptr<SQLite::Database> CopyInMemory(const std::filesystem::path &file, int busyMilliseconds) {
    // Without the flag for creating, a file that is attached must exist too.
    auto database = std::make_unique<SQLite::Database>(":memory:", SQLite::OPEN_READWRITE, busyMilliseconds);
    SQLite::Statement attach(*database, "attach ? as source");
    attach.bind(1, TextOfPath(file));
    attach.exec();

    // One transaction, so that the rows of all tables are those of one moment.
    database->exec("begin");
    for (const std::string &table : CopySchema(*database)) {
        if (!SameIgnoringCase(table, "tempBhukthi")) {
            std::string copy = "insert into main.[";
            copy.append(table).append("] select * from source.[").append(table).append("]");
            database->exec(copy);
        }
    }
    CopyKeyCounters(*database);
    database->exec("commit");
    database->exec("detach source");
    return database;
}

} // namespace kelvaro::store
