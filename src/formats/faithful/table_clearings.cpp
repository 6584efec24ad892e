#include "formats/faithful/table_clearings.h"

#include <algorithm>
#include <limits>

namespace kirto {

std::vector<size_t> TableClearings::Find(const ChoiceImage& image, const LzwPace& pace) {
    if (!parser_) parser_ = std::make_unique<LzwParser>();
    image_ = image;
    pace_ = &pace;
    places_.clear();
    open_.assign(1, Place());
    last_ = kNowhere;
    least_ = std::numeric_limits<uint64>::max();
    while (!open_.empty() && !work_.StopRequested()) {
        places_.push_back(open_.front());
        open_.erase(open_.begin());
        GoOnFrom(places_.size() - 1);
    }
    std::vector<size_t> found;
    for (size_t place = last_; place != kNowhere && places_[place].at > 0;
         place = places_[place].before)
        found.push_back(places_[place].at);
    std::reverse(found.begin(), found.end());
    return found;
}

void TableClearings::GoOnFrom(size_t place) {
    const Place from = places_[place];
    parser_->Start(image_, 0, from.at);
    size_t strings = 0;
    size_t filling = 0;  // strings that it took
    while (!parser_->AtEnd()) {
        if (from.bits + parser_->Bits() >= least_) return;
        parser_->Take();
        ++strings;
        if (!parser_->Full() || parser_->AtEnd()) continue;
        if (filling == 0) filling = strings;
        if ((strings - filling) % kGrid == 0) {
            Place next{parser_->At(), from.bits + parser_->Bits() + parser_->CodeSize(), place};
            next.behind = static_cast<double>(next.bits) -
                          8 * pace_->BytesFor(next.at, image_.indices.size());
            Open(next);
        }
        if (strings > 2 * filling) return;
    }
    if (from.bits + parser_->Bits() >= least_) return;
    least_ = from.bits + parser_->Bits();
    last_ = place;
}

void TableClearings::Open(const Place& place) {
    const auto behind = std::find_if(open_.begin(), open_.end(),
                                     [&](const Place& other) { return other.at >= place.at; });
    if (std::any_of(behind, open_.end(),
                    [&](const Place& other) { return other.bits <= place.bits; }))
        return;
    open_.insert(behind, place);
    std::erase_if(open_, [&](const Place& other) {
        return other.at <= place.at && other.bits >= place.bits &&
               (other.at != place.at || other.bits != place.bits);
    });
    if (open_.size() <= kMostOpen) return;
    open_.erase(std::max_element(open_.begin(), open_.end(), [](const Place& a, const Place& b) {
        return a.behind < b.behind;
    }));
}

}  // namespace kirto
