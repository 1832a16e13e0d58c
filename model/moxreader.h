// The .mox reader: turns one model file into one FileRecord.
#pragma once

#include "filerecord.h"
#include "moxinput.h"

#include <cstdint>
#include <string>
#include <vector>

// The most piggybacks one record holds: 64 lists of 256. Streams start in the first 32 kB of a
// file and an entry takes at least two bytes of one, so only a file whose elements share streams
// can hold more; such a file is cut off there.
constexpr int64_t kMaxEntriesPerRecord = 64 * (kMaxPiggybacks + 1);

// The reader never looks past this many bytes of a file: the tables a header can describe end
// below 1 MiB, and a stream starts below 32 kB and cannot run on for more than 200 kB.
constexpr size_t kMaxUsefulFileBytes = 2 * 1024 * 1024;

// Reads the model file `Filename` as the file of slot `Index` of its family. An empty name or a
// missing file gives a blank record with Loaded false and no message. Otherwise the record comes
// back Loaded whatever the bytes hold; a damaged file is reported through ShowMessage. The
// texture goes to the current TextureLoader, when one is set.
FileRecord READ_MOX(const std::string& Filename, int16_t Index);

// READ_MOX on bytes already in memory: everything after opening the file. `Filename` is noted in
// the record and names the folder where the texture is looked for.
FileRecord ReadMoxBytes(const std::vector<uint8_t>& bytes, const std::string& Filename,
                        int16_t Index);

// Reads one entry of an element stream at the current position, the byte behind it included
// as NextByte.
void READ_ELEMENT_MOX(MoxInput& file, Piggyback& entry);
