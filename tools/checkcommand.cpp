// moxtool check: what is wrong with a model file or a family, before it is flown.
#include "collectinghost.h"
#include "commandsupport.h"
#include "elementkind.h"
#include "elementplane.h"
#include "familymeasures.h"
#include "familynames.h"
#include "modelcheck.h"
#include "moxjson.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <memory>

namespace {

constexpr const char* kUsage = "moxtool check FILE.mox [--family] [--json] [--fix-planes OUT.mox]";
constexpr const char* kDescription =
    "Reads a model file as the editor does and reports, one line each, the errors that break it "
    "and the warnings of what works but may not be meant. Exit status 0 without errors, 1 with "
    "errors, 2 for a usage error or an unreadable file. The rules are listed in docs/moxtool.md.";

struct CheckOptions {
    std::string file;
    bool family = false;
    bool asJson = false;
    std::string fixPlanes;
};

struct CheckedFile {
    std::string path;
    FileRecord record;
    std::vector<Finding> findings;
};

bool MainFileHasCode(const FileRecord& main, uint8_t code) {
    for (int e = 0; e < main.NumElements && e < static_cast<int>(main.Elements.size()); ++e) {
        const ElementList& list = main.Elements[e];
        for (int j = 0; j < list.Count && j < static_cast<int>(list.Items.size()); ++j) {
            if (list.Items[j].Type == kTypeHardpoint && list.Items[j].Att1 == code)
                return true;
        }
    }
    return false;
}

// The hardpoints of the main file against the connected files on disk, both ways.
void CheckFamilyHardpoints(const model& family, const std::string& path,
                           std::vector<CheckedFile>& files) {
    const Family kind = FamilyOf(path);
    const std::vector<ConnectedFile> connected = ConnectedFiles(kind);
    const FileRecord& main = family.Files[0];
    for (int slot = 1; slot <= static_cast<int>(std::size(kHardpointCodes)); ++slot) {
        const uint8_t code = kHardpointCodes[slot - 1];
        const auto member = std::find_if(connected.begin(), connected.end(),
                                         [&](const ConnectedFile& c) { return c.slot == slot; });
        const bool onDisk = member != connected.end() && family.CheckMOX(int16_t(slot));
        const bool placed = MainFileHasCode(main, code);
        if (onDisk && !placed) {
            for (CheckedFile& file : files) {
                if (file.path == family.Files[slot].Filename)
                    file.findings.push_back(Finding{Severity::Warning, "family-hardpoint", "", -1,
                                                    "the main file has no hardpoint with code " +
                                                        std::to_string(code) +
                                                        ": this file is drawn at the origin"});
            }
        } else if (placed && !onDisk) {
            files[0].findings.push_back(
                Finding{Severity::Warning, "family-hardpoint", "", -1,
                        "hardpoint code " + std::to_string(code) + " stands for " +
                            (member == connected.end()
                                 ? std::string("a file this family does not have")
                                 : FamilyStem(path) + member->ending + ", which is not on disk")});
        }
    }
}

bool ReadChecked(const std::string& path, std::vector<CheckedFile>& files) {
    CheckedFile file;
    file.path = path;
    std::vector<std::string> messages;
    std::string error;
    if (!ReadModelFile(path, file.record, messages, error)) {
        PrintError(error);
        return false;
    }
    file.findings = CheckRecord(file.record, messages);
    for (Finding& finding : CheckTexture(file.record))
        file.findings.push_back(std::move(finding));
    files.push_back(std::move(file));
    return true;
}

std::string Where(const Finding& finding) {
    return finding.subject.empty() ? std::string()
                                   : finding.subject + " " + std::to_string(finding.index) + ": ";
}

const char* SeverityName(Severity severity) {
    return severity == Severity::Error ? "error" : "warning";
}

Json FindingJson(const std::string& path, const char* severity, const Finding& finding) {
    Json json = {{"file", path}, {"severity", severity}, {"rule", finding.rule}};
    if (!finding.subject.empty())
        json[finding.subject] = finding.index;
    json["message"] = finding.text;
    return json;
}

// Gives each element whose stored plane is wrong the plane its polygons agree on; `report` gets
// one finding per element looked at, "fixed" or "unfixed".
void FixPlanes(FileRecord& record, std::vector<std::pair<bool, Finding>>& report) {
    for (int e = 0; e < record.NumElements && e < static_cast<int>(record.NRM.size()); ++e) {
        if (!PlaneIsWrong(record, e))
            continue;
        NRMRecord plane;
        switch (FitElementPlane(record, e, plane)) {
        case PlaneFit::Agreed:
            record.NRM[e] = plane;
            report.push_back(
                {true, Finding{Severity::Warning, "fix-planes", "element", e,
                               "plane set to X " + std::to_string(plane.X) + " Y " +
                                   std::to_string(plane.Y) + " Z " + std::to_string(plane.Z) +
                                   " D " + std::to_string(plane.D)}});
            break;
        case PlaneFit::Disagree:
            report.push_back(
                {false, Finding{Severity::Warning, "fix-planes", "element", e,
                                "its polygons disagree on one plane; left as it was"}});
            break;
        case PlaneFit::NoPolygons:
            report.push_back({false, Finding{Severity::Warning, "fix-planes", "element", e,
                                             "no polygons to take a plane from; left as it was"}});
            break;
        }
    }
}

bool SameFile(const std::string& a, const std::string& b) {
    std::error_code error;
    return std::filesystem::equivalent(a, b, error);
}

int RunCheck(const CheckOptions& options) {
    if (options.family && !IsFamilyMainFile(options.file)) {
        PrintError(options.file + ": --family needs the main file of a family (F of a P... name, "
                                  "H of a TMOD... name)");
        return kExitFailure;
    }
    if (!options.fixPlanes.empty() && SameFile(options.file, options.fixPlanes)) {
        PrintError(options.fixPlanes + ": --fix-planes writes a copy, never the checked file");
        return kExitFailure;
    }
    std::vector<CheckedFile> files;
    if (!ReadChecked(options.file, files))
        return kExitFailure;
    if (options.family) {
        model family;
        std::string error;
        if (!LoadModelFamily(options.file, true, family, error)) {
            PrintError(error);
            return kExitFailure;
        }
        for (int slot = 1; slot < static_cast<int>(family.Files.size()); ++slot) {
            if (family.CheckMOX(int16_t(slot)) && !ReadChecked(family.Files[slot].Filename, files))
                return kExitFailure;
        }
        CheckFamilyHardpoints(family, options.file, files);
    }

    std::vector<std::pair<bool, Finding>> fixes;
    if (!options.fixPlanes.empty()) {
        FileRecord fixed = files[0].record;
        FixPlanes(fixed, fixes);
        std::string error;
        if (!WriteModelFile(fixed, options.fixPlanes, error)) {
            PrintError(error);
            return kExitFailure;
        }
    }

    bool errors = false;
    Json json = Json::array();
    for (const CheckedFile& file : files) {
        int counts[2] = {0, 0};
        for (const Finding& finding : file.findings) {
            ++counts[finding.severity == Severity::Error ? 0 : 1];
            if (options.asJson)
                json.push_back(FindingJson(file.path, SeverityName(finding.severity), finding));
            else
                std::cout << file.path << ": " << SeverityName(finding.severity) << ": "
                          << Where(finding) << finding.text << " [" << finding.rule << "]\n";
        }
        errors = errors || counts[0] > 0;
        if (!options.asJson)
            std::cout << file.path << ": " << counts[0] << " errors, " << counts[1]
                      << " warnings\n";
    }
    for (const auto& [fixed, finding] : fixes) {
        if (options.asJson)
            json.push_back(FindingJson(options.fixPlanes, fixed ? "fixed" : "unfixed", finding));
        else
            std::cout << options.fixPlanes << ": " << (fixed ? "fixed" : "not fixed") << ": "
                      << Where(finding) << finding.text << "\n";
    }
    if (options.asJson)
        std::cout << json.dump(2) << "\n";
    return errors ? kExitFindings : kExitOk;
}

} // namespace

ToolCommand CheckCommand() {
    return {"check", "report what is broken or suspicious in a model file or family", kUsage,
            kDescription, [](CLI::App& command) -> CommandRun {
                auto options = std::make_shared<CheckOptions>();
                command.add_option("FILE", options->file, "the model file")
                    ->required()
                    ->type_name("FILE.mox");
                command.add_flag("--family", options->family,
                                 "check the connected files too, and the hardpoints between them");
                command.add_flag("--json", options->asJson, "the findings as a JSON array");
                command
                    .add_option("--fix-planes", options->fixPlanes,
                                "write a copy with the wrong planes set from their polygons")
                    ->type_name("OUT.mox");
                return [options] { return RunCheck(*options); };
            }};
}
