#include "horoscope/NamesForLanguage.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace kelvaro {

namespace {

struct NamePair {
    std::string_view shortName;
    std::string_view longName;
};

struct NameTables {
    std::array<NamePair, 12> bodies; ///< in canonical order
    std::array<NamePair, 12> rasis;
};

constexpr NameTables english{{{
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

constexpr NameTables sanskrit{{{
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

Names NamesOf(const NameTables &tables) {
    Names names;
    for (const BodyFields &fields : bodyFields) {
        const auto place = static_cast<std::size_t>(fields.body);
        names.ShortNames.at(place) = tables.bodies.at(place).shortName;
        if (fields.body <= Body::Ketu) {
            names.LongNames.at(LongNameIndex(fields.body)) = tables.bodies.at(place).longName;
        }
    }
    for (std::size_t i = 0; i < tables.rasis.size(); ++i) {
        names.RasiNames.at(i) = tables.rasis.at(i).longName;
        names.RasiShortNames.at(i) = tables.rasis.at(i).shortName;
    }
    return names;
}

} // namespace

std::optional<Names> NamesIn(Language language) {
    switch (language) {
    case Language::English:
        return NamesOf(english);
    case Language::Sanskrit:
        return NamesOf(sanskrit);
    case Language::Unknown:
        break;
    }
    return std::nullopt;
}

} // namespace kelvaro
