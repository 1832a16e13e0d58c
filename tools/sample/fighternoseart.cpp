#include "fighternoseart.h"

#include "facemaker.h"
#include "fighteratlas.h"
#include "fighterbody.h"
#include "fighterdesign.h"
#include "samplecodes.h"

bool BuildNoseArt(FileRecord& record, std::string& problem) {
    constexpr TextureSize kTexture{kFighterTextureSize, kFighterTextureSize};
    RecordBuilder builder(kFighterTextureName);
    // The file's origin is the centre of the left panel; the right panel stands across the nose.
    const double across = -2 * kNoseArtCentre.y;
    for (bool right : {false, true}) {
        const double y = right ? across : 0;
        const std::vector<Vec3> panel{{-kNoseArtHalfLength, y, -kNoseArtHalfHeight},
                                      {kNoseArtHalfLength, y, -kNoseArtHalfHeight},
                                      {kNoseArtHalfLength, y, kNoseArtHalfHeight},
                                      {-kNoseArtHalfLength, y, kNoseArtHalfHeight}};
        builder.AddFace(ProjectedFace(panel, NoseArtProjection(right), kTexture,
                                      Style(kTypeTexturedPoly, kCodeNoseArt, 0)),
                        Vec3{0, right ? 1.0 : -1.0, 0});
    }
    return builder.Build(record, problem);
}
