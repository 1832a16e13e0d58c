// Seeds of fuzz_project: project texts naming the small family that the fuzz target keeps in its
// working folder.
#pragma once

#include <filesystem>

void WriteProjectSeeds(const std::filesystem::path& folder);
