#pragma once

#include <string>

namespace kelvaro {

/// The birth summary: person, clock times, place, and the almanac of the moment, each text as its field shows
/// it.
struct UserDetailsForm {
    std::string txtGName, txtSex, Txt_BC_Date, txtTimeOfBirth;
    std::string txtist, txtlmt, txtgmt,
        txtIshtaGhati; ///< clock, local mean and Greenwich time; ghatis since sunrise
    std::string txtAyanamsa;
    std::string txtCity, txtCountry, txtLatutude, txtLongitude;
    std::string txtSunRise, txtSunSet;
    std::string txtGregorian, txtVedic; ///< week-days, from midnight and from sunrise
    std::string txtTimeZone;
    std::string txtKLunarDate, txtSLunarDate; ///< month ending at the full and at the new moon
    std::string txtKaliyugaYear, txtSolarDate, txtAyana;
    std::string txtLagna, txtStar, txtTithi, txtPaksha, txtKarnam, txtRasi, txtYogam;
};

} // namespace kelvaro
