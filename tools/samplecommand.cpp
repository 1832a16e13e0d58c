// moxtool sample DIR: writes the demo models, their textures, the 3-view drawings and the project
// that the editor opens by default.
#include "commandsupport.h"
#include "samplewriter.h"

#include <iostream>

namespace {

constexpr const char* kDescription =
    "Writes the demo models into DIR, creating it when needed: the fighter PDEMOF.MOX with its "
    "connected files PDEMOC, PDEMOE and PDEMOG.MOX and its texture PDEMO.PCX, the project "
    "PDEMO.3VW with its 3-view drawings, and the fuel truck TMOD1H.MOX with TMOD1S, TMOD1L and "
    "TMOD1D.MOX and its texture TMOD1.PCX. Existing files of these names are replaced.";
constexpr const char* kUsage = "moxtool sample DIR";

int RunSample(const Arguments& args) {
    std::vector<std::string> written;
    std::string problem;
    if (!WriteSample(args[0], written, problem)) {
        PrintError(problem);
        return kExitFailure;
    }
    for (const std::string& path : written)
        std::cout << path << "\n";
    return kExitOk;
}

} // namespace

ToolCommand SampleCommand() {
    return {"sample", "write the demo fighter, truck, textures, drawings and project", kUsage,
            kDescription, [](CLI::App& command) {
                return DefinePositionals(command, {{"DIR", "the folder to write into"}}, RunSample);
            }};
}
