// The fill of the property panels: the model decides whether there is anything to show, the
// window's panels do the showing.
#include "model.h"
#include "modelhost.h"

namespace {
constexpr int32_t kFirstTab = 1;
constexpr int32_t kLastTab = 7;
} // namespace

void model::WriteInfo(int32_t TabNum) const {
    if (M_Type != kMoxLoaded || TabNum < kFirstTab || TabNum > kLastTab)
        return;
    Host().FillPanel(TabNum);
}
