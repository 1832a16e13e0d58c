// Small model files for the family and project tests, told apart by their Radius.
#pragma once

#include <cstdint>
#include <string>

// Writes a model of one node and one element holding a hardpoint to `path`.
void WriteSmallModel(const std::string& path, int16_t radius);

// The Radius stored in the model file at `path`, or -1 when there is no such file.
int ReadRadius(const std::string& path);
