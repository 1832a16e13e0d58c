#include "splittree.h"

#include "polygonplane.h"

#include <cstdlib>
#include <limits>

namespace {

// Points nearer to a plane than this count as lying on it.
constexpr double kOnPlane = 0.75;
// A straddling element is drawn in the wrong order from some directions, so a splitter that
// straddles fewer is worth more than a balanced tree.
constexpr int kStraddleCost = 4;

class TreeBuilder {
public:
    TreeBuilder(const std::vector<std::vector<Vec3>>& points, FileRecord& record)
        : points_(points), record_(record) {
        for (const auto& element : points)
            centres_.push_back(Centroid(element));
    }

    uint8_t Build(const std::vector<int>& members) {
        if (members.empty())
            return kNoElement;
        const int splitter = ChooseSplitter(members);
        std::vector<int> front;
        std::vector<int> back;
        for (int member : members) {
            if (member == splitter)
                continue;
            (InFront(splitter, member) ? front : back).push_back(member);
        }
        const uint8_t frontChild = Build(front);
        const uint8_t backChild = Build(back);
        record_.PART[splitter] = {frontChild, backChild};
        return static_cast<uint8_t>(splitter);
    }

private:
    bool InFront(int splitter, int member) const {
        return DistanceFromPlane(record_.NRM[splitter], centres_[member]) > kOnPlane;
    }

    bool Straddles(int splitter, int member) const {
        bool ahead = false;
        bool behind = false;
        for (const Vec3& point : points_[member]) {
            const double side = DistanceFromPlane(record_.NRM[splitter], point);
            ahead = ahead || side > kOnPlane;
            behind = behind || side < -kOnPlane;
        }
        return ahead && behind;
    }

    int ChooseSplitter(const std::vector<int>& members) const {
        int best = members.front();
        int bestCost = std::numeric_limits<int>::max();
        for (int candidate : members) {
            int straddling = 0;
            int balance = 0;
            for (int member : members) {
                if (member == candidate)
                    continue;
                straddling += Straddles(candidate, member) ? 1 : 0;
                balance += InFront(candidate, member) ? 1 : -1;
            }
            const int cost = kStraddleCost * straddling + std::abs(balance);
            if (cost < bestCost) {
                bestCost = cost;
                best = candidate;
            }
        }
        return best;
    }

    const std::vector<std::vector<Vec3>>& points_;
    FileRecord& record_;
    std::vector<Vec3> centres_;
};

} // namespace

void BuildSplitTree(const std::vector<std::vector<Vec3>>& elementPoints, FileRecord& record) {
    std::vector<int> all;
    for (int element = 0; element < record.NumElements; ++element) {
        record.PART[element] = {kNoElement, kNoElement};
        all.push_back(element);
    }
    TreeBuilder builder(elementPoints, record);
    record.Root = {builder.Build(all), kNoElement};
}
