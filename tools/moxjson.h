// The JSON form of one model file, as `moxtool dump --json` writes it and `moxtool build` reads
// it (docs/moxtool.md describes every key).
#pragma once

#include "filerecord.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

using Json = nlohmann::ordered_json;

constexpr const char* kMoxJsonFormat = "skylathe-mox/1";

// The JSON form of `record`; `messages` are the texts that reading it showed the user.
Json MoxToJson(const FileRecord& record, const std::vector<std::string>& messages);

// Fills `record` from the JSON form. Returns false, with `error` naming the JSON path of the
// first bad value ("elements[3][0].nodes: 4 entries, crn is 3"), when a key is missing, a value
// lies outside its field's range or a list does not match its count.
bool MoxFromJson(const Json& json, FileRecord& record, std::string& error);
