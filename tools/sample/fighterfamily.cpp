#include "fighterfamily.h"

#include "fighterbody.h"
#include "fighternoseart.h"
#include "fighterwing.h"

bool BuildFighterFamily(SampleFamily& family, std::string& problem) {
    family = {
        {"PDEMOF.MOX", 0, {}}, {"PDEMOC.MOX", 3, {}}, {"PDEMOE.MOX", 4, {}}, {"PDEMOG.MOX", 5, {}}};
    return BuildFighterBody(family[0].record, problem) && BuildNoseArt(family[1].record, problem) &&
           BuildFighterWing(false, family[2].record, problem) &&
           BuildFighterWing(true, family[3].record, problem);
}
