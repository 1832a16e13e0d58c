// The project of the sample, PDEMO.3VW: the fighter's family, its dimensions, the box its 3-view
// drawings fill, the drawings and a few notes.
#pragma once

#include "assembledfamily.h"
#include "programstate.h"
#include "samplefamily.h"

#include <string>

constexpr const char* kSampleProjectFile = "PDEMO.3VW";
constexpr const char* kTopDrawingFile = "PDEMO_TOP.PCX";
constexpr const char* kLeftDrawingFile = "PDEMO_LEFT.PCX";
constexpr const char* kFrontDrawingFile = "PDEMO_FRONT.PCX";

// The project record for `family` written into `folder` (an absolute path), whose assembled
// model fills `box`.
ProjectRecord SampleProject(const std::string& folder, const SampleFamily& family,
                            const ModelBox& box);
