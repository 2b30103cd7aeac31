#pragma once

#include "horoscope/entry/BirthEntry.h"

namespace Ui {
class frm_OpenChart;
} // namespace Ui

namespace kelvaro {

/// The lists of countries, cities and zones of the form of birth details, and the choices from them. All
/// operations raise StoreError where the lists or a place cannot be read.
class BirthPlaces {
public:
    /// Form, fields and horoscope must outlive the object. `ListAnew` fills the lists.
    BirthPlaces(Ui::frm_OpenChart &form, BirthFields &fields, const Horoscope &horoscope);

    /// Reads the lists from the database: the countries, and the places of the chosen one.
    void ListAnew();

    /// Puts cities and zones into their lists.
    void List(const PlaceChoices &choices);

    // A row has been picked: it is taken even where it stands there already, as its master may have been
    // changed since.
    void PickCountry();
    void PickCity();
    void PickZone();

    // What a text names is taken; nothing is done for a text that names no row or that has been taken.
    void TakeCountry();
    void TakeCity();
    void TakeZone();

private:
    Ui::frm_OpenChart &form_;
    BirthFields &fields_;
    const HoroscopeState &state_;
    store::PlaceLists lists_;
};

} // namespace kelvaro
