#include "store/masters/CityZones.h"

#include "runtime/Paths.h"
#include "runtime/Trigonometry.h"
#include "store/database/Dialect.h"
#include "store/database/NameCollation.h"
#include "store/database/Recordset.h"

#include <numbers>
#include <system_error>

namespace kelvaro::store {

namespace {

constexpr std::string_view tableName = "CityZone";

double Radians(double degrees, double minutes, bool isNegative) {
    constexpr double minutesOfDegree = 60;
    constexpr double degreesOfHalfCircle = 180;
    const double angle = (degrees + minutes / minutesOfDegree) * std::numbers::pi / degreesOfHalfCircle;
    return isNegative ? -angle : angle;
}

struct Direction {
    double latitude;  ///< radians, North positive
    double longitude; ///< radians, East positive
};

Direction DirectionOf(const Place &place) {
    return {Radians(place.latDeg, place.latMin, place.latNS == "S"),
            Radians(place.lonDeg, place.lonMin, place.lonEW == "W")};
}

/// The cosine of the angle between two places at the centre of the Earth: the nearer, the greater.
double Nearness(const Direction &a, const Direction &b) {
    return Sine(a.latitude) * Sine(b.latitude) +
           Cosine(a.latitude) * Cosine(b.latitude) * Cosine(a.longitude - b.longitude);
}

bool HasTable(std::string_view schema, Connection &connection) {
    Recordset tables;
    tables.Open("select name from " + std::string(schema) +
                    ".sqlite_schema where type = 'table' and name = " + Quoted(tableName),
                connection);
    return !tables.IsEndOfFile();
}

/// A path in a statement; unlike the texts that are typed it may have quotes.
std::string Literal(const std::filesystem::path &file) {
    std::string literal = "'";
    for (const char sign : TextOfPath(file)) {
        literal.append(sign == '\'' ? 2 : 1, sign);
    }
    return literal.append("'");
}

/// Another database beside the one of the connection, for as long as the object lives.
class Attached {
public:
    Attached(const std::filesystem::path &file, Connection &connection) : connection_(connection) {
        connection_.Execute("attach database " + Literal(file) + " as program");
    }
    Attached(const Attached &) = delete;
    Attached &operator=(const Attached &) = delete;
    ~Attached() {
        try {
            connection_.Execute("detach database program");
        } catch (const StoreError &) {
            // The end of the connection lets go of it as well.
        }
    }

private:
    Connection &connection_;
};

} // namespace

bool CityZones::AreKnown() const {
    return HasTable("main", connection_);
}

void CityZones::BringFrom(const std::filesystem::path &programFile) {
    std::error_code unreadable;
    if (AreKnown() || !std::filesystem::exists(programFile, unreadable)) {
        return;
    }
    const Attached program(programFile, connection_);
    if (!HasTable("program", connection_)) {
        return;
    }
    Transaction change(connection_);
    connection_.Execute("create table CityZone (CityID integer primary key, TimeZoneName text) strict");
    connection_.Execute("insert into main.CityZone select listed.CityID, zone.TimeZoneName "
                        "from program.CityZone as zone join program.City_Master as listed using (CityID) "
                        "join main.City_Master as present "
                        "on present.CityID = listed.CityID and present.CityName = listed.CityName");
    change.Commit();
}

std::optional<std::string> CityZones::ZoneOfCity(std::string_view cityName, std::int32_t countryId) const {
    // The index finds what differs in the case of A to Z only, which is nearly always all.
    for (const std::string_view comparison : {std::string_view(), inAnyCase}) {
        std::string statement =
            "select City_Master.*, TimeZoneName from City_Master left join CityZone using (CityID) "
            "where CityName = ";
        statement.append(Quoted(cityName)).append(comparison);
        if (countryId != 0) {
            statement.append(" and CountryID = ").append(std::to_string(countryId));
        }
        Recordset city;
        city.Open(statement, connection_);
        if (!city.IsEndOfFile()) {
            return city.IsNull("TimeZoneName") ? ZoneNear(PlaceIn(city), city.Integer("CountryID"))
                                               : city.Line("TimeZoneName");
        }
    }
    return std::nullopt;
}

std::string CityZones::ZoneNear(const Place &place, std::int32_t countryId) const {
    Recordset cities;
    cities.Open("select City_Master.*, TimeZoneName from City_Master join CityZone using (CityID) "
                "where CountryID = " +
                    std::to_string(countryId),
                connection_);
    const Direction wanted = DirectionOf(place);
    double nearest = -2; // below every cosine
    std::string zone;
    cities.ForEach([&](const Recordset &city) {
        const double nearness = Nearness(wanted, DirectionOf(PlaceIn(city)));
        if (nearness > nearest) {
            nearest = nearness;
            zone = city.Line("TimeZoneName");
        }
    });
    return zone;
}

std::string CityZones::ZoneOfBirthplace(std::string_view cityName, const Place &place,
                                        std::int32_t countryId) const {
    if (!AreKnown()) {
        return {};
    }
    const auto zone = ZoneOfCity(cityName, countryId);
    return zone ? *zone : ZoneNear(place, countryId);
}

void CityZones::Forget(std::int32_t cityId) {
    if (AreKnown()) {
        connection_.Execute("delete from CityZone where CityID = " + std::to_string(cityId));
    }
}

} // namespace kelvaro::store
