#include "projectseeds.h"

#include "programstate.h"
#include "projectfile.h"

#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace {

ProjectRecord FamilyProject() {
    ProjectRecord project;
    project.Type = 1;
    project.F = "SHIPF.MOX";
    project.A = "SHIPA.MOX";
    project.B = project.C = project.E = project.G = project.P = kNoPath;
    project.Span = 1200;
    project.Length = -32768;
    project.Height = 32767;
    project.TopLeftX = -300;
    project.TopLeftY = 20;
    project.TopLeftZ = 7;
    project.Top = "top.pcx";
    project.Left = kNoPath;
    project.Front = "front=1.pcx";
    project.Notes = "wing root chord 2.1 m\r\nsecond line\r\n\r\nlast";
    return project;
}

} // namespace

void WriteProjectSeeds(const std::filesystem::path& folder) {
    ProjectRecord hFamily = FamilyProject();
    hFamily.F = "TMOD1H.MOX";
    hFamily.A = kNoPath;
    hFamily.B = "TMOD1L.MOX";
    hFamily.Notes.clear();
    const std::vector<std::pair<const char*, std::string>> seeds = {
        {"family", ProjectFileText(FamilyProject(), false)},
        {"h-family", ProjectFileText(hFamily, true)},
        {"tolerant", "notakey=1\nbottom=under.pcx\nspan= -12 \n\nf=SHIPF.MOX\rback=NONE\r\n"
                     "right=side.pcx\ntype=MOX TMOD\r\ntopleftz=+5\r\nNOTES=a\n\nb"},
        {"no-equals", "Type=MOX\r\nF=SHIPF.MOX\r\njust words\r\nSpan=3\r\n"},
        {"numbers", "Span=99999\r\nLength=-0\r\nHeight=\t12\t\r\nTopLeftX=1x\r\n"},
        {"notes-only", "Notes=\xe9t\xe9\r\n\r\n\xff\r\n"},
        {"empty", ""},
    };
    const std::filesystem::path target = folder / "fuzz_project";
    std::filesystem::create_directories(target);
    for (const auto& [name, text] : seeds)
        std::ofstream(target / name, std::ios::binary) << text;
}
