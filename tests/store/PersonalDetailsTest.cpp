#include "store/masters/PersonalDetails.h"

#include "tests/store/StoreFixture.h"

namespace kelvaro::store {
namespace {

TEST_F(StoreTest, LetterheadIsOneRowAndAFaultKeepsIt) {
    const PersonalDetails letterhead{"Asha Rao", "1 Hill Road", "Second Floor", "Pune",
                                     "India",    "411001",      "020 1",        "asha@example.org"};
    SavePersonalDetails({}, connection_);
    EXPECT_EQ(SavePersonalDetails(letterhead, connection_).text, "Details Saved");
    EXPECT_EQ(First("select count(*) || Address2 || Zipcode from PersonalDetails"), "1Second Floor411001");
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
