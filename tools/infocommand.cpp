// moxtool info: one short summary per model file.
#include "commandsupport.h"
#include "elementkind.h"
#include "familymeasures.h"
#include "latin1text.h"
#include "moxjson.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>

namespace {

constexpr const char* kDescription =
    "One summary per model file: radius, texture, counts, the hardpoints found and the messages "
    "of the read. The main file of a family is loaded with its connected files, and the "
    "measures of the assembled model follow.";
constexpr const char* kUsage = "moxtool info FILE.mox...";

// The stored texture name without its trailing NUL or blank characters, as a JSON string.
std::string TextureText(const TextureName& texture) {
    std::string name(texture.begin(), texture.end());
    name.erase(name.find_last_not_of(std::string(" \0", 2)) + 1);
    return Json(Latin1ToUtf8(name)).dump();
}

int CountPiggybacks(const FileRecord& record) {
    int total = 0;
    for (int i = 0; i < record.NumElements && static_cast<size_t>(i) < record.Elements.size(); ++i)
        total += std::max<int>(record.Elements[i].Count, 0);
    return total;
}

// "slot 1 (code 25) x 10 y 20 z 30" for every slot a hardpoint of the file filled.
std::string Hardpoints(const FileRecord& record) {
    bool filled[std::size(kHardpointCodes)] = {};
    for (int i = 0; i < record.NumElements && static_cast<size_t>(i) < record.Elements.size();
         ++i) {
        const ElementList& list = record.Elements[i];
        for (int j = 0; j < list.Count && static_cast<size_t>(j) < list.Items.size(); ++j) {
            const Piggyback& item = list.Items[j];
            const int slot = HardpointSlot(item.Att1);
            if (item.Type == kTypeHardpoint && slot > 0 && !item.NodeList.empty() &&
                item.NodeList[0] < record.Nodes.size())
                filled[slot - 1] = true;
        }
    }
    std::string text;
    for (size_t s = 0; s < std::size(kHardpointCodes); ++s) {
        if (!filled[s])
            continue;
        const Node& node = record.HP[s + 1];
        text += (text.empty() ? "" : "; ") + std::string("slot ") + std::to_string(s + 1) +
                " (code " + std::to_string(kHardpointCodes[s]) + ") x " + std::to_string(node.X) +
                " y " + std::to_string(node.Y) + " z " + std::to_string(node.Z);
    }
    return text.empty() ? "none" : text;
}

int RunInfo(const Arguments& args) {
    int status = kExitOk;
    for (const std::string& file : args) {
        FileRecord record;
        std::vector<std::string> messages;
        std::string error;
        if (!ReadModelFile(file, record, messages, error)) {
            PrintError(error);
            status = kExitFailure;
            continue;
        }
        std::cout << file << ": radius " << record.Radius << ", texture "
                  << TextureText(record.Texture) << ", " << record.NumParts << " parts, "
                  << record.NumNodes << " nodes, " << record.NumElements << " elements, "
                  << CountPiggybacks(record) << " piggybacks\n"
                  << "  hardpoints: " << Hardpoints(record) << "\n";
        for (const std::string& message : messages)
            std::cout << "  message: " << message << "\n";
        if (IsFamilyMainFile(file))
            PrintFamilyMeasures(file, std::cout);
    }
    return status;
}

} // namespace

ToolCommand InfoCommand() {
    return {"info", "summarise model files: counts, texture, radius, hardpoints", kUsage,
            kDescription, [](CLI::App& command) -> CommandRun {
                auto files = std::make_shared<Arguments>();
                command.add_option("FILE", *files, "model files")->required();
                return [files] { return RunInfo(*files); };
            }};
}
