#include "tools/horoscope-json/HoroscopeWriter.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cstdint>
#include <string>
#include <variant>

namespace kelvaro {

namespace {

using nlohmann::ordered_json;
using State = HoroscopeState;

using ResultMember =
    std::variant<double State::*, std::int16_t State::*, Moment State::*, std::string State::*,
                 std::array<double, 12> State::*, std::array<std::int16_t, 12> State::*,
                 std::array<std::string, 10> State::*, std::array<std::string, 12> State::*>;

struct ResultField {
    const char *name;
    ResultMember member;
};

constexpr std::array resultFields{
    ResultField{"BirthMomentDate", &State::BirthMomentDate},
    ResultField{"Ayanamsa", &State::Ayanamsa},
    ResultField{"MidHeaven", &State::MidHeaven},
    ResultField{"LagnaLon", &State::LagnaLon},
    ResultField{"SunLon", &State::SunLon},
    ResultField{"MoonLon", &State::MoonLon},
    ResultField{"MarsLon", &State::MarsLon},
    ResultField{"MercuryLon", &State::MercuryLon},
    ResultField{"JupiterLon", &State::JupiterLon},
    ResultField{"VenusLon", &State::VenusLon},
    ResultField{"SaturnLon", &State::SaturnLon},
    ResultField{"RahuLon", &State::RahuLon},
    ResultField{"KetuLon", &State::KetuLon},
    ResultField{"GulikaLon", &State::GulikaLon},
    ResultField{"MaandiLon", &State::MaandiLon},
    ResultField{"LagnaRasi", &State::LagnaRasi},
    ResultField{"SunRasi", &State::SunRasi},
    ResultField{"MoonRasi", &State::MoonRasi},
    ResultField{"MarsRasi", &State::MarsRasi},
    ResultField{"MercuryRasi", &State::MercuryRasi},
    ResultField{"JupiterRasi", &State::JupiterRasi},
    ResultField{"VenusRasi", &State::VenusRasi},
    ResultField{"SaturnRasi", &State::SaturnRasi},
    ResultField{"RahuRasi", &State::RahuRasi},
    ResultField{"KetuRasi", &State::KetuRasi},
    ResultField{"GulikaRasi", &State::GulikaRasi},
    ResultField{"MaandiRasi", &State::MaandiRasi},
    ResultField{"SunriseOfBirthDay", &State::SunriseOfBirthDay},
    ResultField{"SunsetOfBirthDay", &State::SunsetOfBirthDay},
    ResultField{"SunriseNextDay", &State::SunriseNextDay},
    ResultField{"DayCurrentDate", &State::DayCurrentDate},
    ResultField{"DaySunrise", &State::DaySunrise},
    ResultField{"DaySunset", &State::DaySunset},
    ResultField{"DayNextSunrise", &State::DayNextSunrise},
    ResultField{"DayOrNight", &State::DayOrNight},
    ResultField{"GulikaDay", &State::GulikaDay},
    ResultField{"GulikaNight", &State::GulikaNight},
    ResultField{"MandiDay", &State::MandiDay},
    ResultField{"MandiNight", &State::MandiNight},
    ResultField{"GulikaMoment", &State::GulikaMoment},
    ResultField{"MandiMoment", &State::MandiMoment},
    ResultField{"SummaryMoment", &State::SummaryMoment},
    ResultField{"LocalMeanTimeMoment", &State::LocalMeanTimeMoment},
    ResultField{"SunriseForGhati", &State::SunriseForGhati},
    ResultField{"IshtaGhatiMinutes", &State::IshtaGhatiMinutes},
    ResultField{"IshtaGhati", &State::IshtaGhati},
    ResultField{"BhavaStart", &State::BhavaStart},
    ResultField{"BhavaMid", &State::BhavaMid},
    ResultField{"BhavaSandhi", &State::BhavaSandhi},
    ResultField{"BhavaRasi", &State::BhavaRasi},
    ResultField{"BhavaPlanets", &State::BhavaPlanets},
    ResultField{"MoonStarName", &State::MoonStarName},
    ResultField{"MoonStarPada", &State::MoonStarPada},
    ResultField{"MoonHouseNo", &State::MoonHouseNo},
    ResultField{"DasaBalanceText", &State::DasaBalanceText},
    ResultField{"ShortNames", &State::ShortNames},
    ResultField{"LongNames", &State::LongNames},
    ResultField{"RasiNames", &State::RasiNames},
    ResultField{"RasiShortNames", &State::RasiShortNames},
    ResultField{"GulikaLongName", &State::GulikaLongName},
    ResultField{"MaandiLongName", &State::MaandiLongName},
};

struct ChartFormField {
    const char *name;
    ChartForm HoroscopeForms::*form;
};

constexpr std::array chartForms{
    ChartFormField{"frm_rasi", &HoroscopeForms::frm_rasi},
    ChartFormField{"frm_Navamsa", &HoroscopeForms::frm_Navamsa},
    ChartFormField{"frm_BhavaChart", &HoroscopeForms::frm_BhavaChart},
};

struct SummaryField {
    const char *name;
    std::string UserDetailsForm::*text;
};

constexpr std::array summaryFields{
    SummaryField{"txtGName", &UserDetailsForm::txtGName},
    SummaryField{"txtSex", &UserDetailsForm::txtSex},
    SummaryField{"Txt_BC_Date", &UserDetailsForm::Txt_BC_Date},
    SummaryField{"txtTimeOfBirth", &UserDetailsForm::txtTimeOfBirth},
    SummaryField{"txtist", &UserDetailsForm::txtist},
    SummaryField{"txtlmt", &UserDetailsForm::txtlmt},
    SummaryField{"txtgmt", &UserDetailsForm::txtgmt},
    SummaryField{"txtIshtaGhati", &UserDetailsForm::txtIshtaGhati},
    SummaryField{"txtAyanamsa", &UserDetailsForm::txtAyanamsa},
    SummaryField{"txtCity", &UserDetailsForm::txtCity},
    SummaryField{"txtCountry", &UserDetailsForm::txtCountry},
    SummaryField{"txtLatutude", &UserDetailsForm::txtLatutude},
    SummaryField{"txtLongitude", &UserDetailsForm::txtLongitude},
    SummaryField{"txtSunRise", &UserDetailsForm::txtSunRise},
    SummaryField{"txtSunSet", &UserDetailsForm::txtSunSet},
    SummaryField{"txtGregorian", &UserDetailsForm::txtGregorian},
    SummaryField{"txtVedic", &UserDetailsForm::txtVedic},
    SummaryField{"txtTimeZone", &UserDetailsForm::txtTimeZone},
    SummaryField{"txtKLunarDate", &UserDetailsForm::txtKLunarDate},
    SummaryField{"txtSLunarDate", &UserDetailsForm::txtSLunarDate},
    SummaryField{"txtKaliyugaYear", &UserDetailsForm::txtKaliyugaYear},
    SummaryField{"txtSolarDate", &UserDetailsForm::txtSolarDate},
    SummaryField{"txtAyana", &UserDetailsForm::txtAyana},
    SummaryField{"txtLagna", &UserDetailsForm::txtLagna},
    SummaryField{"txtStar", &UserDetailsForm::txtStar},
    SummaryField{"txtTithi", &UserDetailsForm::txtTithi},
    SummaryField{"txtPaksha", &UserDetailsForm::txtPaksha},
    SummaryField{"txtKarnam", &UserDetailsForm::txtKarnam},
    SummaryField{"txtRasi", &UserDetailsForm::txtRasi},
    SummaryField{"txtYogam", &UserDetailsForm::txtYogam},
};

struct GridField {
    const char *name;
    const TextGrid &(*grid)(const HoroscopeForms &);
};

constexpr std::array gridFields{
    GridField{"mshNirayana",
              [](const HoroscopeForms &f) -> const TextGrid & { return f.Frm_PP.mshNirayana; }},
    GridField{"msh_Bhava",
              [](const HoroscopeForms &f) -> const TextGrid & { return f.frm_CBhava.msh_Bhava; }},
    GridField{"bhava_features",
              [](const HoroscopeForms &f) -> const TextGrid & { return f.frm_CBhava.bhava_features; }},
    GridField{"mshVargas",
              [](const HoroscopeForms &f) -> const TextGrid & { return f.Frm_Vargas.mshVargas; }},
    GridField{"mshAshtaVarga",
              [](const HoroscopeForms &f) -> const TextGrid & { return f.Frm_AVargas.mshAshtaVarga; }},
    GridField{"mshDasa", [](const HoroscopeForms &f) -> const TextGrid & { return f.Frm_Dasa.mshDasa; }},
    GridField{"mshBukti", [](const HoroscopeForms &f) -> const TextGrid & { return f.Frm_Dasa.mshBukti; }},
    GridField{"mshAntra", [](const HoroscopeForms &f) -> const TextGrid & { return f.Frm_Dasa.mshAntra; }},
};

template <typename Value> ordered_json ValueJson(const Value &value) {
    return value;
}

ordered_json ValueJson(const Moment &moment) {
    return moment.Serial();
}

ordered_json StateJson(const State &state) {
    ordered_json out = ordered_json::object();
    for (const auto &[name, member] : resultFields) {
        out[name] = std::visit([&state](auto field) { return ValueJson(state.*field); }, member);
    }
    return out;
}

const std::array<std::string, 12> &VisibleCells(const ChartForm &form) {
    // No frame is visible before the first fill; then the cells of every style are empty.
    switch (form.VisibleFrame.value_or(ChartStyle::South)) {
    case ChartStyle::East:
        return form.East;
    case ChartStyle::North:
        return form.North;
    case ChartStyle::South:
        break;
    }
    return form.South;
}

ordered_json ChartJson(const ChartForm &form) {
    return {{"cells", VisibleCells(form)}, {"Lab_NHouseNo", form.Lab_NHouseNo}};
}

ordered_json SummaryJson(const UserDetailsForm &form) {
    ordered_json out = ordered_json::object();
    for (const auto &[name, text] : summaryFields) {
        out[name] = form.*text;
    }
    return out;
}

} // namespace

ordered_json HoroscopeJson(const Horoscope &horoscope) {
    ordered_json out = ordered_json::object();
    out["HoroscopeState"] = StateJson(horoscope.state);
    for (const auto &[name, form] : chartForms) {
        out[name] = ChartJson(horoscope.forms.*form);
    }
    out["frm_UserDetails"] = SummaryJson(horoscope.forms.frm_UserDetails);
    for (const auto &[name, grid] : gridFields) {
        out[name] = grid(horoscope.forms).rows;
    }
    out["Lab_DasaBalanceV"] = horoscope.forms.Frm_Dasa.Lab_DasaBalanceV;
    out["DasaBalanceText"] = horoscope.state.DasaBalanceText;
    return out;
}

} // namespace kelvaro
