// Opens a model file built in memory as the main file of `owner`, as a load would leave it,
// without touching the disk.
#pragma once

#include "model.h"
#include "moxbuilder.h"

void OpenInMemory(model& owner, const MoxBuilder& file);
