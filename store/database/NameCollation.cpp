#include "store/database/NameCollation.h"

#include "runtime/CaseFolding.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <cstddef>

namespace kelvaro::store {

namespace {

std::string_view TextOf(int length, const void *bytes) {
    return {static_cast<const char *>(bytes), static_cast<std::size_t>(length)};
}

int Compare(void * /*unused*/, int leftLength, const void *left, int rightLength, const void *right) {
    return CompareInAnyCase(TextOf(leftLength, left), TextOf(rightLength, right));
}

} // namespace

void AddNameCollation(SQLite::Database &database) {
    const int code = sqlite3_create_collation_v2(database.getHandle(), "NameInAnyCase", SQLITE_UTF8, nullptr,
                                                 Compare, nullptr);
    if (code != SQLITE_OK) {
        throw SQLite::Exception(database.getHandle(), code);
    }
}

} // namespace kelvaro::store
