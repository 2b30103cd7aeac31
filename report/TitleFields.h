#pragma once

#include "horoscope/record/UserDetailsForm.h"
#include "store/database/Connection.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

// What stands on the first page of a horoscope, however it is laid out.

/// The three lines of the invocation, with the blanks that centre them in the text report.
inline constexpr std::array<std::string_view, 3> invocation{
    "                         AUM GANESHAYA NAMAH",
    "           JANANI JANMA SOUKHYANAM VARDHINEE KULA SAMPADAM",
    "           PADAVI POORVA PUNYANAM  LIKHYATE  JANMA PATRIKA",
};

/// A text of the birth summary, and what it is called.
struct LabelledField {
    std::string_view label;
    std::string UserDetailsForm::*text;
};

inline constexpr std::array<LabelledField, 29> labelledFields{{
    {"Name", &UserDetailsForm::txtGName},
    {"Sex", &UserDetailsForm::txtSex},
    {"Date of Birth", &UserDetailsForm::Txt_BC_Date},
    {"Time of Birth", &UserDetailsForm::txtTimeOfBirth},
    {"LMT", &UserDetailsForm::txtlmt},
    {"GMT", &UserDetailsForm::txtgmt},
    {"Time Zone", &UserDetailsForm::txtTimeZone},
    {"Ishta Ghati", &UserDetailsForm::txtIshtaGhati},
    {"Birth County", &UserDetailsForm::txtCountry},
    {"Birth City", &UserDetailsForm::txtCity},
    {"Latitude", &UserDetailsForm::txtLatutude},
    {"Longitude", &UserDetailsForm::txtLongitude},
    {"Sun Rise", &UserDetailsForm::txtSunRise},
    {"Sun Set", &UserDetailsForm::txtSunSet},
    {"Ayanamsa", &UserDetailsForm::txtAyanamsa},

    {"Vedic Day", &UserDetailsForm::txtVedic},
    {"Gregorian Day", &UserDetailsForm::txtGregorian},
    {"Solar Date", &UserDetailsForm::txtSolarDate},
    {"Lunar Sukladi Date", &UserDetailsForm::txtSLunarDate},
    {"Lunar Krishnadi Date", &UserDetailsForm::txtKLunarDate},
    {"Kaliyuga Year", &UserDetailsForm::txtKaliyugaYear},
    {"Ayana", &UserDetailsForm::txtAyana},

    {"Janma Lagna", &UserDetailsForm::txtLagna},
    {"Janma Rasi", &UserDetailsForm::txtRasi},
    {"Star", &UserDetailsForm::txtStar},
    {"Tithi", &UserDetailsForm::txtTithi},
    {"Paksha", &UserDetailsForm::txtPaksha},
    {"Yogam", &UserDetailsForm::txtYogam},
    {"Karnam", &UserDetailsForm::txtKarnam},
}};

/// The person and the clocks of the birth, the calendar, and the almanac of the moment.
inline constexpr std::array<std::span<const LabelledField>, 3> fieldGroups{
    std::span(labelledFields).subspan(0, 15), std::span(labelledFields).subspan(15, 7),
    std::span(labelledFields).subspan(22, 7)};

/// The owner of the program, as he heads what he hands out.
struct Letterhead {
    std::string name;               ///< empty where none is stored
    std::vector<std::string> lines; ///< name, address and so on; what is empty is left out with its label
};

/// The stored letterhead. Raises StoreError when it cannot be read.
Letterhead ReadLetterhead(store::Connection &connection);

} // namespace kelvaro
