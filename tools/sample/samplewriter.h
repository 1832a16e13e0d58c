// Writes the whole sample into a folder: the fighter's family and texture, its 3-view drawings
// and project, and the truck's family and texture.
#pragma once

#include <string>
#include <vector>

// Writes the sample into `folder`, creating it when needed. Returns false, with `problem`
// telling which file failed and why, on the first failure; `written` lists the full paths of the
// files written, in order.
bool WriteSample(const std::string& folder, std::vector<std::string>& written,
                 std::string& problem);
