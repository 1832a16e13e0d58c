// moxtool dump: shows everything a model file holds, as readable text or in the JSON form.
#include "commandsupport.h"
#include "moxjson.h"

#include <iostream>

namespace {

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

int RunDump(const Arguments& args) {
    if (HelpRequested(args)) {
        std::cout << "usage: " << kUsage
                  << "\n\nShows every field of a model file as the editor reads it, and the "
                     "messages reading it shows.\n  --json  the JSON form that `moxtool build` "
                     "reads (docs/moxtool.md)\n";
        return kExitOk;
    }
    bool asJson = false;
    std::string file;
    for (const std::string& word : args) {
        if (word == "--json" && !asJson) {
            asJson = true;
        } else if (word.rfind("-", 0) == 0 || !file.empty()) {
            return UsageError(kUsage);
        } else {
            file = word;
        }
    }
    if (file.empty())
        return UsageError(kUsage);

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
    return {"dump", "show every field of a model file, as text or JSON", RunDump};
}
