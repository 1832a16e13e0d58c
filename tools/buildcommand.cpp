// moxtool build: writes a model file from its JSON form, as the editor's save would write it.
#include "commandsupport.h"
#include "moxjson.h"

#include <iostream>

namespace {

constexpr const char* kDescription =
    "Writes the model file that the JSON form describes (the form "
    "`moxtool dump --json` prints, docs/moxtool.md).\nA bad value is named by "
    "its JSON path and nothing is written.";
constexpr const char* kUsage = "moxtool build IN.json OUT.mox";

int RunBuild(const Arguments& args) {
    std::string text;
    std::string error;
    if (!ReadTextFile(args[0], text, error)) {
        PrintError(error);
        return kExitFailure;
    }
    Json json;
    try {
        json = Json::parse(text);
    } catch (const Json::parse_error& bad) {
        // what() starts with the library's own tag in brackets; the rest says where and why.
        const std::string what = bad.what();
        const size_t tag = what.find("] ");
        PrintError(args[0] + ": not well-formed JSON: " +
                   (tag == std::string::npos ? what : what.substr(tag + 2)));
        return kExitFailure;
    }
    FileRecord record;
    if (!MoxFromJson(json, record, error)) {
        PrintError(args[0] + ": " + error);
        return kExitFailure;
    }
    if (!WriteModelFile(record, args[1], error)) {
        PrintError(error);
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace

ToolCommand BuildCommand() {
    return {"build", "write a model file from its JSON form", kUsage, kDescription,
            [](CLI::App& command) {
                return DefinePositionals(
                    command, {{"IN", "the JSON form"}, {"OUT", "the model file to write"}},
                    RunBuild);
            }};
}
