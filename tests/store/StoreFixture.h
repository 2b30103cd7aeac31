#pragma once

#include "store/database/Connection.h"
#include "store/database/DatabaseFile.h"
#include "store/database/Recordset.h"
#include "tests/system/System.h"
#include "tests/system/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace kelvaro::store {

inline std::string BytesOf(const std::filesystem::path &file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void WriteFile(const std::filesystem::path &file, std::string_view bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

/// What the error says that some work raises; empty when it raises none.
template <typename Work> std::string ErrorOf(Work work) {
    try {
        work();
    } catch (const StoreError &error) {
        return error.what();
    }
    return {};
}

/// Whether some work refuses a text for its quote, before any statement is run.
template <typename Work> bool RefusesQuote(Work work) {
    return ErrorOf(work).starts_with("The quote in");
}

inline std::string FirstText(std::string_view statement, Connection &connection) {
    Recordset rows;
    rows.Open(statement, connection);
    return rows.Text(std::size_t{0});
}

/// A copy of the seed database that a test may write to.
class StoreTest : public testing::Test {
protected:
    StoreTest() {
        std::filesystem::copy_file(KELVARO_SEED_DATABASE, file_);
        std::filesystem::permissions(file_, std::filesystem::perms(0666));
        connection_.Open(file_);
    }

    std::string First(std::string_view statement) { return FirstText(statement, connection_); }

    TemporaryFolder folder_;
    std::filesystem::path file_ = folder_ / databaseFileName;
    std::chrono::milliseconds patience_{200}; ///< with other programs that lock the database
    Connection connection_{patience_};
};

} // namespace kelvaro::store
