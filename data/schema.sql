-- The tables of DBMirvaneBasic.mdb.
--
-- Texts compare and sort without regard to case. STRICT refuses a text in a column of numbers, so that a wrong
-- value fails where it is written and not where it is read. Keys are AUTOINCREMENT: the number of a deleted
-- chart is never given to another one.

PRAGMA user_version = 1;

CREATE TABLE ChartSave (
    Sno INTEGER PRIMARY KEY AUTOINCREMENT,
    ChartName TEXT COLLATE NOCASE, -- "Velnesh~14-Jul-1965"
    Gender TEXT COLLATE NOCASE,
    Country INTEGER, -- a CountryID
    City TEXT COLLATE NOCASE,
    ChartDay INTEGER,
    ChartMonth INTEGER,
    ChartYear INTEGER,
    ChartHour INTEGER,
    ChartMinute INTEGER,
    ChartSecond INTEGER,
    LatitudeDegree REAL,
    Latitude_NS TEXT COLLATE NOCASE,
    LatitudeMinute REAL,
    LongitudeDegree REAL,
    Longitude_EW TEXT COLLATE NOCASE,
    LongitudeMinute REAL,
    TimeDifference INTEGER -- in spite of its name the SNo of a TimeZone, no hours
) STRICT;

-- Couple charts, listed only; nothing in this edition writes them.
CREATE TABLE GChartSave (
    Sno INTEGER PRIMARY KEY AUTOINCREMENT,
    ChartName TEXT COLLATE NOCASE
) STRICT;

CREATE TABLE Country_Master (
    CountryID INTEGER PRIMARY KEY AUTOINCREMENT,
    CountryName TEXT COLLATE NOCASE,
    TimeZoneID TEXT COLLATE NOCASE -- numbers of TimeZone, separated by commas; empty for a new country
) STRICT;

CREATE TABLE City_Master (
    CityID INTEGER PRIMARY KEY AUTOINCREMENT,
    CityName TEXT COLLATE NOCASE,
    CountryID INTEGER,
    LatitudeDegree REAL,
    Latitude_NS TEXT COLLATE NOCASE,
    LatitudeMinute REAL,
    LongitudeDegree REAL,
    Longitude_EW TEXT COLLATE NOCASE,
    LongitudeMinute REAL
) STRICT;
CREATE INDEX City_Master_by_name ON City_Master (CityName);
CREATE INDEX City_Master_by_country ON City_Master (CountryID, CityName);

-- Which zone of the tz database a city lies in. A city that the user adds has no row.
CREATE TABLE CityZone (
    CityID INTEGER PRIMARY KEY,
    TimeZoneName TEXT -- "Asia/Kolkata"
) STRICT;

CREATE TABLE TimeZone (
    SNo INTEGER PRIMARY KEY AUTOINCREMENT,
    Place TEXT COLLATE NOCASE,
    TimeDifference REAL, -- decimal hours from Greenwich, never negative
    TimeZone TEXT COLLATE NOCASE -- "E" or "W"
) STRICT;

CREATE TABLE Preference (
    PreID TEXT COLLATE NOCASE PRIMARY KEY,
    Ayanamsa TEXT COLLATE NOCASE,
    Bhava TEXT COLLATE NOCASE,
    DayInYear REAL,
    ChartStyle TEXT COLLATE NOCASE,
    PreferLanguage TEXT COLLATE NOCASE,
    CustomYear REAL,
    CustomProgress REAL
) STRICT;

CREATE TABLE PersonalDetails (
    Name TEXT COLLATE NOCASE,
    Address TEXT COLLATE NOCASE,
    Address2 TEXT COLLATE NOCASE,
    City TEXT COLLATE NOCASE,
    Country TEXT COLLATE NOCASE,
    Zipcode TEXT COLLATE NOCASE,
    Phone TEXT COLLATE NOCASE,
    EMail TEXT COLLATE NOCASE
) STRICT;

CREATE TABLE KaliyugaYearDetails (
    Yearno INTEGER PRIMARY KEY,
    yearname TEXT COLLATE NOCASE,
    YearVal REAL,
    DayVal INTEGER,
    YearRemain REAL
) STRICT;

-- A body at a degree of a rasi falls into HouseNumber; a band includes its start and not its end.
CREATE TABLE chartsmaster (
    chartname TEXT COLLATE NOCASE,
    startDegree REAL,
    EndDegree REAL,
    RasiHouse INTEGER,
    HouseNumber INTEGER
) STRICT;
-- Every horoscope looks some hundred bodies up: all columns stand in the index, so the table is not visited.
CREATE INDEX chartsmaster_by_band ON chartsmaster (chartname, RasiHouse, startDegree, EndDegree, HouseNumber);

-- Every horoscope adds its periods and nothing reads or deletes them. There is no key and no index on purpose: a
-- row goes to the end of the table, which costs the same after ten thousand horoscopes as after one.
CREATE TABLE tempBhukthi (
    UserID TEXT COLLATE NOCASE,
    DasaName TEXT COLLATE NOCASE,
    BhukthiName TEXT COLLATE NOCASE,
    BhukthiStart TEXT COLLATE NOCASE,
    BhukhiEnd TEXT COLLATE NOCASE, -- the spelling that the statements use
    BhukthiAge TEXT COLLATE NOCASE
) STRICT;

-- Its one row makes a select of literals return one row; the column is never read.
CREATE TABLE tempdasasandhi (
    Id INTEGER PRIMARY KEY
) STRICT;

INSERT INTO Preference VALUES ('1', 'Lahiri', 'Equal', 365.25, 'South', 'English', 0, 0);
INSERT INTO tempdasasandhi VALUES (1);
