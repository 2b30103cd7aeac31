#include "store/database/RowNumbers.h"

#include "store/database/Recordset.h"

#include <string>

namespace kelvaro::store {

void BringNumbersBack(std::string_view table, std::string_view key, Connection &connection) {
    constexpr std::string_view highest = "2147483647";
    const std::string rows = std::string(" from ").append(table).append(" where ").append(key);
    const std::string number(key);
    Recordset beyond;
    beyond.Open("select " + number + rows + " > " + std::string(highest), connection);
    if (beyond.IsEndOfFile()) {
        return;
    }
    Transaction together(connection);
    for (; !beyond.IsEndOfFile(); beyond.MoveNext()) {
        std::string change = "update ";
        change.append(table).append(" set ").append(number).append(" = (select ifnull(max(");
        change.append(number).append("), 0) + 1").append(rows).append(" between 0 and ").append(highest);
        change.append(") where ").append(number).append(" = ").append(beyond.Text(std::size_t{0}));
        connection.Execute(change);
    }
    connection.Execute("update sqlite_sequence set seq = (select max(" + number + ") from " +
                       std::string(table) + ") where name = '" + std::string(table) + "'");
    together.Commit();
}

} // namespace kelvaro::store
