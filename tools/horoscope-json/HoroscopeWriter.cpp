#include "tools/horoscope-json/HoroscopeWriter.h"

#include <nlohmann/json.hpp>

#include <array>
#include <string>

namespace kelvaro {

namespace {

using nlohmann::ordered_json;

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

void AddPositions(const Positions &positions, ordered_json &out) {
    out["BirthMomentDate"] = positions.BirthMomentDate.Serial();
    out["Ayanamsa"] = positions.Ayanamsa;
    out["MidHeaven"] = positions.MidHeaven;
    out["LagnaLon"] = positions.LagnaLon;
    out["SunLon"] = positions.SunLon;
    out["MoonLon"] = positions.MoonLon;
    out["MarsLon"] = positions.MarsLon;
    out["MercuryLon"] = positions.MercuryLon;
    out["JupiterLon"] = positions.JupiterLon;
    out["VenusLon"] = positions.VenusLon;
    out["SaturnLon"] = positions.SaturnLon;
    out["RahuLon"] = positions.RahuLon;
    out["KetuLon"] = positions.KetuLon;
    out["GulikaLon"] = positions.GulikaLon;
    out["MaandiLon"] = positions.MaandiLon;
    out["LagnaRasi"] = positions.LagnaRasi;
    out["SunRasi"] = positions.SunRasi;
    out["MoonRasi"] = positions.MoonRasi;
    out["MarsRasi"] = positions.MarsRasi;
    out["MercuryRasi"] = positions.MercuryRasi;
    out["JupiterRasi"] = positions.JupiterRasi;
    out["VenusRasi"] = positions.VenusRasi;
    out["SaturnRasi"] = positions.SaturnRasi;
    out["RahuRasi"] = positions.RahuRasi;
    out["KetuRasi"] = positions.KetuRasi;
    out["GulikaRasi"] = positions.GulikaRasi;
    out["MaandiRasi"] = positions.MaandiRasi;
}

void AddDayOfBirth(const DayOfBirth &day, ordered_json &out) {
    out["SunriseOfBirthDay"] = day.SunriseOfBirthDay.Serial();
    out["SunsetOfBirthDay"] = day.SunsetOfBirthDay.Serial();
    out["SunriseNextDay"] = day.SunriseNextDay.Serial();
    out["DayCurrentDate"] = day.DayCurrentDate.Serial();
    out["DaySunrise"] = day.DaySunrise.Serial();
    out["DaySunset"] = day.DaySunset.Serial();
    out["DayNextSunrise"] = day.DayNextSunrise.Serial();
    out["DayOrNight"] = day.DayOrNight;
    out["GulikaDay"] = day.GulikaDay.Serial();
    out["GulikaNight"] = day.GulikaNight.Serial();
    out["MandiDay"] = day.MandiDay.Serial();
    out["MandiNight"] = day.MandiNight.Serial();
    out["GulikaMoment"] = day.GulikaMoment.Serial();
    out["MandiMoment"] = day.MandiMoment.Serial();
    if (!day.SunRemark.empty()) {
        out["SunRemark"] = day.SunRemark;
    }
}

void AddGhatiTimes(const GhatiTimes &ghati, ordered_json &out) {
    out["SummaryMoment"] = ghati.SummaryMoment.Serial();
    out["LocalMeanTimeMoment"] = ghati.LocalMeanTimeMoment.Serial();
    out["SunriseForGhati"] = ghati.SunriseForGhati.Serial();
    out["IshtaGhatiMinutes"] = ghati.IshtaGhatiMinutes;
    out["IshtaGhati"] = ghati.IshtaGhati;
}

void AddHouses(const Houses &houses, ordered_json &out) {
    out["BhavaStart"] = houses.BhavaStart;
    out["BhavaMid"] = houses.BhavaMid;
    out["BhavaSandhi"] = houses.BhavaSandhi;
    out["BhavaRasi"] = houses.BhavaRasi;
    out["BhavaPlanets"] = houses.BhavaPlanets;
}

void AddMoonStar(const MoonStar &moonStar, ordered_json &out) {
    out["MoonStarName"] = moonStar.MoonStarName;
    out["MoonStarPada"] = moonStar.MoonStarPada;
    out["MoonHouseNo"] = moonStar.MoonHouseNo;
}

void AddNames(const Names &names, ordered_json &out) {
    out["ShortNames"] = names.ShortNames;
    out["LongNames"] = names.LongNames;
    out["RasiNames"] = names.RasiNames;
    out["RasiShortNames"] = names.RasiShortNames;
    out["GulikaLongName"] = names.GulikaLongName;
    out["MaandiLongName"] = names.MaandiLongName;
}

ordered_json StateJson(const HoroscopeState &state) {
    ordered_json out = ordered_json::object();
    AddPositions(state.positions, out);
    AddDayOfBirth(state.day, out);
    AddGhatiTimes(state.ghati, out);
    AddHouses(state.houses, out);
    AddMoonStar(state.moonStar, out);
    out["DasaBalanceText"] = state.DasaBalanceText;
    AddNames(state.names, out);
    return out;
}

const std::array<std::string, 12> &VisibleCells(const ChartForm &form) {
    // No frame is visible before the first fill; then the cells of every style are empty.
    switch (form.VisibleFrame) {
    case ChartStyle::East:
        return form.East;
    case ChartStyle::North:
        return form.North;
    case ChartStyle::South:
    case ChartStyle::Unknown:
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
