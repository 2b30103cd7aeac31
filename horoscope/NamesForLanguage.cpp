#include "horoscope/NamesForLanguage.h"

#include "horoscope/record/Bodies.h"

#include <string_view>

namespace kelvaro {

namespace {

struct Names {
    std::string_view shortName;
    std::string_view longName;
};

struct LanguageNames {
    std::string_view language;
    std::array<Names, 12> bodies; ///< in canonical order
    std::array<Names, 12> rasis;
};

constexpr LanguageNames english{"English",
                                {{
                                    {"Asc", "Asc"},
                                    {"Sun", "Sun"},
                                    {"Moo", "Moon"},
                                    {"Mar", "Mars"},
                                    {"Mer", "Mercury"},
                                    {"Jup", "Jupiter"},
                                    {"Ven", "Venus"},
                                    {"Sat", "Saturn"},
                                    {"Rah", "Rahu"},
                                    {"Ket", "Ketu"},
                                    {"Gul", "Gulika"},
                                    {"Maa", "Maandi"},
                                }},
                                {{
                                    {"Ari", "Aries"},
                                    {"Tau", "Taurus"},
                                    {"Gem", "Gemini"},
                                    {"Can", "Cancer"},
                                    {"Leo", "Leo"},
                                    {"Vir", "Virgo"},
                                    {"Lib", "Libra"},
                                    {"Sco", "Scorpio"},
                                    {"Sag", "Sagitarius"},
                                    {"Cap", "Capricon"},
                                    {"Aqu", "Aquarius"},
                                    {"Pis", "Pisces"},
                                }}};

constexpr LanguageNames sanskrit{"Sanskrit",
                                 {{
                                     {"Lag", "Lagna"},
                                     {"Rav", "Surya"},
                                     {"Cha", "Chandra"},
                                     {"Kuj", "Kuja"},
                                     {"Bud", "Budha"},
                                     {"Gur", "Guru"},
                                     {"Suk", "Sukra"},
                                     {"San", "Sani"},
                                     {"Rah", "Rahu"},
                                     {"Ket", "Ketu"},
                                     {"Gul", "Gulika"},
                                     {"Maa", "Maandi"},
                                 }},
                                 {{
                                     {"Mes", "Mesha"},
                                     {"Ris", "Rishaba"},
                                     {"Mit", "Mithuna"},
                                     {"Kat", "Kataka"},
                                     {"Sim", "Simha"},
                                     {"Kan", "Kanya"},
                                     {"Tul", "Tula"},
                                     {"Vri", "Vrischika"},
                                     {"Dha", "Dhanus"},
                                     {"Mak", "Makara"},
                                     {"Kum", "Kumbha"},
                                     {"Mee", "Meena"},
                                 }}};

void Load(const LanguageNames &names, HoroscopeState &state) {
    for (const BodyFields &fields : bodyFields) {
        const auto place = static_cast<std::size_t>(fields.body);
        state.names.ShortNames.at(place) = names.bodies.at(place).shortName;
        if (fields.body <= Body::Ketu) {
            state.names.LongNames.at(LongNameIndex(fields.body)) = names.bodies.at(place).longName;
        }
    }
    for (std::size_t i = 0; i < names.rasis.size(); ++i) {
        state.names.RasiNames.at(i) = names.rasis.at(i).longName;
        state.names.RasiShortNames.at(i) = names.rasis.at(i).shortName;
    }
}

} // namespace

void LoadNamesForLanguage(HoroscopeState &state) {
    for (const LanguageNames &names : {english, sanskrit}) {
        if (state.preferences.Language == names.language) {
            Load(names, state);
        }
    }
}

} // namespace kelvaro
