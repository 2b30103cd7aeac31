#include "store/masters/PersonalDetails.h"

#include "tests/store/StoreFixture.h"

namespace kelvaro::store {
namespace {

const PersonalDetails letterhead{"Asha Rao", "1 Hill Road", "Second Floor", "Pune",
                                 "India",    "411001",      "020 1",        "asha@example.org"};

class PersonalDetailsTest : public StoreTest {};

TEST_F(PersonalDetailsTest, HoldsOneRowAtMost) {
    PersonalDetails unnamed;
    unnamed.Name = "Kelvaro Technologies Pvt Ltd";
    EXPECT_EQ(ReadPersonalDetails(connection_), unnamed);
    SavePersonalDetails(unnamed, connection_);
    EXPECT_EQ(SavePersonalDetails(letterhead, connection_).text, "Details Saved");
    EXPECT_EQ(ReadPersonalDetails(connection_), letterhead);
    EXPECT_EQ(First("select count(*) || Address2 || Zipcode from PersonalDetails"), "1Second Floor411001");
    DeletePersonalDetails(connection_);
    EXPECT_EQ(ReadPersonalDetails(connection_), unnamed);
}

TEST_F(PersonalDetailsTest, AFaultKeepsTheStoredRow) {
    SavePersonalDetails(letterhead, connection_);
    PersonalDetails quoted = letterhead;
    quoted.EMail = "');delete from PersonalDetails;--";
    EXPECT_THROW(SavePersonalDetails(quoted, connection_), StoreError);
    connection_.Execute("create trigger refusal before insert on PersonalDetails begin select "
                        "raise(abort, 'refused'); end");
    EXPECT_EQ(ErrorOf([&] { SavePersonalDetails({}, connection_); }), "refused");
    EXPECT_EQ(ReadPersonalDetails(connection_), letterhead);
}

} // namespace
} // namespace kelvaro::store
