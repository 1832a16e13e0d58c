// The text of the configuration file Skylathe.cfg: the recent files and the four options, one
// "key value" line each, lines ended by CR LF.
#pragma once

#include "programstate.h"

#include <string>

// Reads the lines of `text` over the recent lists and options of `state`. A line whose key is not
// known, that has no blank, or whose value is not understood is passed over and the value already
// in `state` stands; see docs/configuration.md.
void ReadConfigText(const std::string& text, ProgramState& state);
// The file's text for the recent lists and options of `state`.
std::string ConfigText(const ProgramState& state);
// Puts the recent lists and the options of `state` back to their start values.
void ResetConfigValues(ProgramState& state);
