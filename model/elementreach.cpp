#include "elementreach.h"

#include <algorithm>

namespace {

enum class Visit { NotYet, OnTheWay, Done };

struct Step {
    int element = 0;
    int nextSide = 0;
};

} // namespace

ElementReach ReachFromRoot(const FileRecord& record) {
    const int elements =
        std::max(0, std::min<int>(record.NumElements, static_cast<int>(record.PART.size())));
    ElementReach reach;
    reach.timesReached.assign(static_cast<size_t>(elements), 0);
    std::vector<Visit> visits(static_cast<size_t>(elements), Visit::NotYet);
    std::vector<Step> path;

    // Follows one link; returns true when the linked element is to be walked now.
    const auto follow = [&](const ElementLink& link) {
        if (link.element >= elements)
            return false;
        ++reach.timesReached[link.element];
        if (visits[link.element] == Visit::OnTheWay)
            reach.cycles.push_back(link);
        if (visits[link.element] != Visit::NotYet)
            return false;
        visits[link.element] = Visit::OnTheWay;
        path.push_back(Step{link.element, 0});
        return true;
    };

    follow(ElementLink{-1, 0, record.Root[0]});
    while (!path.empty()) {
        Step& step = path.back();
        if (step.nextSide > 1) {
            visits[step.element] = Visit::Done;
            path.pop_back();
            continue;
        }
        const int side = step.nextSide++;
        const int parent = step.element;
        follow(ElementLink{parent, side, record.PART[parent][side]});
    }
    return reach;
}
