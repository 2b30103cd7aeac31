#include "store/tables/BhuktiTable.h"

namespace kelvaro::store {

void AddBhuktis(Connection &connection, long chartNumber, std::span<const Bhukti> bhuktis) {
    Transaction transaction(connection);
    for (const Bhukti &row : bhuktis) {
        connection.Execute("insert into "
                           "tempBhukthi(UserID,DasaName,BhukthiName,BhukthiStart,BhukhiEnd,BhukthiAge) "
                           "Values('" +
                           std::to_string(chartNumber) + "','" + row.dasa + "','" + row.bhukti + "','" +
                           row.start + "','" + row.end + "','" + row.age + "')");
    }
    transaction.Commit();
}

} // namespace kelvaro::store
