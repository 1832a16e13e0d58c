// DrawFile: the painter of one file of the model family.
#pragma once

#include "filerecord.h"

// Paints `record` moved by `displacement`, the file's hardpoint in the main file.
void DrawFile(const FileRecord& record, const Node& displacement);
