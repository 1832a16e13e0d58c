// moxtool resave: reads a model file and writes it back exactly as the editor's save does.
#include "commandsupport.h"

#include <iostream>

namespace {

constexpr const char* kDescription =
    "Reads a model file and writes it as the editor's save would: a fresh "
    "offset table and\nthe streams packed in element order. Messages of the "
    "read are shown on stderr.";
constexpr const char* kUsage = "moxtool resave IN.mox OUT.mox";

int RunResave(const Arguments& args) {
    FileRecord record;
    std::vector<std::string> messages;
    std::string error;
    if (!ReadModelFile(args[0], record, messages, error)) {
        PrintError(error);
        return kExitFailure;
    }
    for (const std::string& message : messages)
        PrintError(args[0] + ": " + message);
    if (!WriteModelFile(record, args[1], error)) {
        PrintError(error);
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace

ToolCommand ResaveCommand() {
    return {"resave", "read a model file and write it back as the editor saves", kUsage,
            kDescription, [](CLI::App& command) {
                return DefinePositionals(
                    command, {{"IN", "the model file to read"}, {"OUT", "the model file to write"}},
                    RunResave);
            }};
}
