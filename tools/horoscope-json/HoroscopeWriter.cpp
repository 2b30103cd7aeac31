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

} // namespace

ordered_json HoroscopeJson(const Horoscope &horoscope) {
    ordered_json out = ordered_json::object();
    out["HoroscopeState"] = StateJson(horoscope.state);
    for (const auto &[name, form] : chartForms) {
        out[name] = ChartJson(horoscope.forms.*form);
    }
    return out;
}

} // namespace kelvaro
