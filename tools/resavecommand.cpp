// moxtool resave: reads a model file and writes it back exactly as the editor's save does.
#include "commandsupport.h"

#include <iostream>

namespace {

constexpr const char* kUsage = "moxtool resave IN.mox OUT.mox";

int RunResave(const Arguments& args) {
    if (HelpRequested(args)) {
        std::cout << "usage: " << kUsage
                  << "\n\nReads a model file and writes it as the editor's save would: a fresh "
                     "offset table and\nthe streams packed in element order. Messages of the "
                     "read are shown on stderr.\n";
        return kExitOk;
    }
    if (args.size() != 2 || args[0].rfind("-", 0) == 0 || args[1].rfind("-", 0) == 0)
        return UsageError(kUsage);

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
    return {"resave", "read a model file and write it back as the editor saves", RunResave};
}
