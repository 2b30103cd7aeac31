#include "store/database/StatementText.h"

#include "store/database/Connection.h"

namespace kelvaro::store {

std::string Quoted(std::string_view text) {
    if (text.find('\'') != std::string_view::npos) {
        throw StoreError("Syntax error: the quote in " + std::string(text) +
                         " ends the text of the statement. Leave it out.");
    }
    std::string quoted = "'";
    quoted.append(text).append("'");
    return quoted;
}

} // namespace kelvaro::store
