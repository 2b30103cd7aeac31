#include "horoscope/entry/DiscardedBirths.h"

#include <cstddef>
#include <utility>

namespace kelvaro {

void DiscardedBirths::Keep(const BirthFields &typed) {
    constexpr std::size_t mostKept = 20;
    Forget(typed);
    births_.push_back(typed);
    if (births_.size() > mostKept) {
        births_.pop_front();
    }
}

void DiscardedBirths::Forget(const BirthFields &saved) {
    std::erase_if(births_, [&saved](const BirthFields &kept) { return HaveSameTexts(kept, saved); });
}

void DiscardedBirths::BringBack(BirthFields &form, bool isTyped) {
    if (births_.empty()) {
        return;
    }
    BirthFields back = std::move(births_.back());
    births_.pop_back();
    if (isTyped) {
        births_.push_front(form);
    }
    back.txt_VC_UserId = form.txt_VC_UserId;
    back.savedAs = form.savedAs;
    // A zone that came with an opened chart is stored by the number of its row, as one that was chosen.
    if (back.chosen.zoneNumber == 0) {
        back.chosen.zoneNumber = back.txt_VC_TimeDiffId;
    }
    form = std::move(back);
}

} // namespace kelvaro
