// WalkSequence (Mod_MOX_Draw): the elements of one file painted in the order that its tree of
// splitting planes gives for the viewing direction, so that the author of a model sees the order
// the tree makes.
#pragma once

#include "filerecord.h"
#include "moxdraw.h"

#include <cstdint>

inline constexpr const char* kInvalidSplittingPlane = "Invalid Splitting Plane";

// Paints the subtree of `element` (255 for none): for an eye in front of the element's plane its
// second child's subtree, the element's piggybacks, then its first child's; otherwise the other
// way round. `first` starts the walk of a file: the viewing direction is worked out from the
// heading and pitch of `settings` and the elements reached by the last walk are forgotten.
// A plane without a normal is noted as a message of the frame and walked like a tie.
void WalkSequence(const FileRecord& record, int16_t element, bool first, const Node& displacement,
                  const DrawSettings& settings);
