// What the family and project tests look at: the Radius of a file and of each slot, what a folder
// holds after a save; the entries of a record as text, to compare them whole.
#pragma once

#include "model.h"
#include "moxbuilder.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

// The Radius stored in the model file at `path`, or -1 when there is no such file.
int ReadRadius(const std::string& path);

// Which file each slot of `m` holds, by the file's Radius (0 to 9), "." where no file was read.
std::string Slots(const model& m);

// The names of the entries of `folder`, sorted.
std::vector<std::string> FilesIn(const std::filesystem::path& folder);

// Numbers as "1,-2,3,".
std::string Numbers(const std::vector<int>& values);

// Every entry of every element, each as "Number COD,Flag, tType cCRN nNodeList xXMap yYMap
// aAtt1,Att2,".
std::vector<std::string> Entries(const FileRecord& record);
