// Where the texture of a model file is looked for: in the model file's own folder, under the
// stored name upper-cased, with ".TPC" standing for the ".PCX" file of the same name.
#pragma once

#include "filerecord.h"

#include <string>

// The name the model's texture is looked for under: the stored characters up to the first NUL,
// trailing blanks dropped, upper-cased, every ".TPC" turned into ".PCX", as UTF-8.
std::string TextureFileName(const TextureName& texture);

// The path handed to the texture loader: the folder of `modelFilename` followed by the texture
// file name. When the folder holds the file under another case (plane.pcx for PLANE.PCX), that
// file's own name is used, so the lookup works on a case-sensitive file system.
std::string TexturePath(const std::string& modelFilename, const TextureName& texture);
