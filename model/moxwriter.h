// The .mox writer: turns one FileRecord into a model file, with a fresh offset table and the
// element streams packed back to back in element order.
#pragma once

#include "filerecord.h"
#include "moxoutput.h"

#include <cstdint>
#include <string>
#include <vector>

// Writes `record` to `Filename`, replacing any file of that name only once the new file is
// complete. Refuses, with "Error in Save..." and what is too large, a model whose streams would
// start beyond byte 32767; any failure to write shows "Error in Save..." and leaves an old file
// of that name as it was. An empty name does nothing. Returns true when the file was written.
// The record is not changed.
bool SAVE_MOX(const FileRecord& record, const std::string& Filename);

// The bytes SAVE_MOX writes for `record`. Returns false, with `problem` telling what is too
// large, when a stream would start beyond byte 32767.
bool BuildMoxBytes(const FileRecord& record, std::vector<uint8_t>& bytes, std::string& problem);

// Writes one element's stream at the current position: its entries but the NULL ones, then the
// closing FF and a 00. Returns the length counted up to and including the FF, so that the next
// stream starts on the 00.
int32_t SAVE_ELEMENT_MOX(MoxOutput& file, const ElementList& list);
