// moxtool dump: shows everything a model file holds, as readable text or in the JSON form.
#include "commandsupport.h"
#include "moxjson.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace {

constexpr const char* kDescription =
    "Shows every field of a model file as the editor reads it, and the "
    "messages reading it shows.";
constexpr const char* kUsage = "moxtool dump [--json] FILE.mox";

// One value on one line: scalars as JSON, lists of scalars separated by blanks, objects as
// "key value" pairs.
std::string Inline(const Json& value) {
    std::string text;
    const auto append = [&text](const std::string& word) {
        if (!text.empty())
            text += ' ';
        text += word;
    };
    if (value.is_object()) {
        for (const auto& [key, field] : value.items())
            append(key + " " + Inline(field));
    } else if (value.is_array()) {
        for (const Json& item : value)
            append(Inline(item));
    } else {
        append(value.dump());
    }
    return text;
}

bool IsFlat(const Json& value) {
    if (value.is_object())
        return false;
    if (!value.is_array())
        return true;
    for (const Json& item : value) {
        if (item.is_structured())
            return false;
    }
    return true;
}

// A list whose items are structured: one line per item, numbered, deeper lists indented.
void PrintList(std::ostream& out, const Json& list, const std::string& indent) {
    size_t index = 0;
    for (const Json& item : list) {
        const std::string label = indent + "[" + std::to_string(index++) + "]";
        if (item.is_object() || IsFlat(item)) {
            const std::string values = Inline(item);
            out << label << (values.empty() ? "" : " ") << values << "\n";
        } else {
            out << label << "\n";
            PrintList(out, item, indent + "  ");
        }
    }
}

void PrintText(std::ostream& out, const Json& json) {
    for (const auto& [key, value] : json.items()) {
        if (key == "messages") {
            out << "messages:\n";
            for (const Json& message : value)
                out << "  " << message.get<std::string>() << "\n";
        } else if (IsFlat(value)) {
            out << key << ": " << Inline(value) << "\n";
        } else {
            out << key << ":\n";
            PrintList(out, value, "  ");
        }
    }
}

struct DumpOptions {
    bool asJson = false;
    std::string file;
};

int RunDump(const DumpOptions& options) {
    const bool asJson = options.asJson;
    const std::string& file = options.file;
    FileRecord record;
    std::vector<std::string> messages;
    std::string error;
    if (!ReadModelFile(file, record, messages, error)) {
        PrintError(error);
        return kExitFailure;
    }
    const Json json = MoxToJson(record, messages);
    if (asJson)
        std::cout << json.dump(2) << "\n";
    else
        PrintText(std::cout, json);
    return kExitOk;
}

} // namespace

ToolCommand DumpCommand() {
    return {"dump", "show every field of a model file, as text or JSON", kUsage, kDescription,
            [](CLI::App& command) -> CommandRun {
                auto options = std::make_shared<DumpOptions>();
                command.add_flag("--json", options->asJson, "print the JSON form");
                command.add_option("FILE", options->file, "the model file")->required();
                return [options] { return RunDump(*options); };
            }};
}
