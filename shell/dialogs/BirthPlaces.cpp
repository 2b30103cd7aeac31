#include "shell/dialogs/BirthPlaces.h"

#include "horoscope/Horoscope.h"
#include "shell/dialogs/BirthControls.h"
#include "shell/widgets/ListedChoice.h"
#include "ui_BirthDialog.h"

namespace kelvaro {

BirthPlaces::BirthPlaces(Ui::frm_OpenChart &form, BirthFields &fields, const Horoscope &horoscope)
    : form_(form), fields_(fields), state_(horoscope.state), lists_(horoscope.connection) {}

void BirthPlaces::ListAnew() {
    FillList(form_.txt_VC_Country, lists_.Countries());
    const std::int32_t country = fields_.chosen.countryId;
    List(country == 0 ? PlaceChoices() : PlaceChoices{lists_.CitiesOf(country), lists_.ZonesOf(country)});
}

void BirthPlaces::List(const PlaceChoices &choices) {
    FillList(form_.txt_VC_City, choices.cities);
    FillList(form_.cbTimeZone, RowsOf(choices.zones));
}

void BirthPlaces::PickCountry() {
    fields_.chosen.country.clear();
    TakeCountry();
}

void BirthPlaces::PickCity() {
    fields_.chosen.city.clear();
    TakeCity();
}

void BirthPlaces::PickZone() {
    fields_.chosen.zone.clear();
    TakeZone();
}

void BirthPlaces::TakeCountry() {
    const store::ListItem country{ChosenText(form_.txt_VC_Country).toStdString(),
                                  ChosenKey(form_.txt_VC_Country)};
    if (country.text.empty() ||
        country == store::ListItem{fields_.chosen.country, fields_.chosen.countryId}) {
        return;
    }
    List(ChooseCountry(fields_, country, lists_, state_));
    ShowText(form_.txt_VC_Country, fields_.txt_VC_Country);
    ShowText(form_.txt_VC_City, fields_.txt_VC_City);
    ShowText(form_.cbTimeZone, fields_.cbTimeZone);
}

void BirthPlaces::TakeCity() {
    const std::string city = ChosenText(form_.txt_VC_City).toStdString();
    if (city.empty() || city == fields_.chosen.city) {
        return;
    }
    fields_.txt_VC_City = city;
    ChooseCity(fields_, lists_);
    ShowText(form_.txt_VC_City, city);
}

void BirthPlaces::TakeZone() {
    const std::string zone = ChosenText(form_.cbTimeZone).toStdString();
    if (zone.empty() || zone == fields_.chosen.zone) {
        return;
    }
    ChooseZone(fields_, ChosenKey(form_.cbTimeZone), lists_, state_);
    ShowText(form_.cbTimeZone, fields_.cbTimeZone);
}

} // namespace kelvaro
