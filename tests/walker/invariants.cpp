#include "walker/invariants.h"

#include <algorithm>

namespace kivu::walker {

bool Moment::Answered(const std::string& titlePart, platform::Answer answer) const {
    return std::any_of(boxes.begin(), boxes.end(), [&](const BoxLook& shown) {
        return shown.box.title.find(titlePart) != std::string::npos && shown.box.answer == answer;
    });
}

std::vector<Expected> Moment::AllExpected() const {
    std::vector<Expected> all{expected};
    for (const Intrusion& intrusion : inner)
        all.push_back(intrusion.expected);
    return all;
}

std::optional<Fault> Check(const Moment& moment, const std::set<std::string>& leftOut) {
    for (const auto* table :
         {&StartInvariants(), &HandedInvariants(), &RunningInvariants(), &PadInvariants(),
          &FrontInvariants(), &ListInvariants(), &PreviewInvariants(), &StoreInvariants(),
          &WindowInvariants(), &HelperInvariants()}) {
        for (const Invariant& invariant : *table) {
            const bool exempt =
                std::any_of(invariant.exemptions.begin(), invariant.exemptions.end(),
                            [&](const Exemption& exemption) { return exemption.holds(moment); });
            if (exempt || leftOut.contains(invariant.name)) continue;
            std::string what = invariant.check(moment);
            if (!what.empty()) return Fault{&invariant, std::move(what)};
        }
    }
    return {};
}

std::string Quoted(const std::string& text) {
    return "\"" + text + "\"";
}

std::string Number(std::size_t number) {
    return std::to_string(number);
}

}  // namespace kivu::walker
