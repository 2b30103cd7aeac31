#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "pages/PageSetter.h"
#include "report/TitleFields.h"

#include <string>

namespace kelvaro {

/// Sets the first page, on the page that is open: the invocation, the owner's letterhead, whose horoscope it
/// is, what it comes to at a glance, and the birth summary in two columns. Texts of any length stay on the
/// page: the longest are shortened.
void SetTitlePage(const UserDetailsForm &form, const std::string &dasaBalance, const Letterhead &letterhead,
                  PageSetter &setter);

} // namespace kelvaro
