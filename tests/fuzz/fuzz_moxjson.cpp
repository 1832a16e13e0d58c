// Any text as the JSON form that `moxtool build` reads: the reader survives it, and a form it
// accepts writes a file whose own JSON form builds the same bytes again.
#include "moxjson.h"
#include "moxreader.h"
#include "moxwriter.h"

#include <algorithm>
#include <cstdlib>

namespace {

// A file whose lists hold more entries than the reader takes reads back cut short.
bool ListsFitTheReader(const FileRecord& record) {
    return std::all_of(record.Elements.begin(), record.Elements.end(), [](const ElementList& list) {
        return std::count_if(list.Items.begin(), list.Items.end(), [](const Piggyback& item) {
                   return item.Type != kTypeNull;
               }) <= kMaxPiggybacks;
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const Json json = Json::parse(data, data + size, nullptr, false);
    FileRecord record;
    std::string error;
    std::vector<uint8_t> bytes;
    if (json.is_discarded() || !MoxFromJson(json, record, error) ||
        !BuildMoxBytes(record, bytes, error))
        return 0;
    FileRecord rebuilt;
    std::vector<uint8_t> again;
    if (!MoxFromJson(MoxToJson(ReadMoxBytes(bytes, "FUZZ.MOX", 0), {}), rebuilt, error) ||
        !BuildMoxBytes(rebuilt, again, error) || (ListsFitTheReader(record) && again != bytes))
        std::abort();
    return 0;
}
