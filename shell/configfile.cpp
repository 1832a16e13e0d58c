#include "configfile.h"

#include "programstate.h"

void ReadConfig() {
    // Reading and writing the file itself comes with the configuration file; until then every
    // run starts from the defaults, without the message about a missing file.
    const ProgramState defaults;
    ProgramState& state = Program();
    state.RecentModels = defaults.RecentModels;
    state.RecentProjects = defaults.RecentProjects;
    state.LineWeight = defaults.LineWeight;
    state.LineColour = defaults.LineColour;
    state.SkyColour = defaults.SkyColour;
    state.IncrementalSave = defaults.IncrementalSave;
}

// Nothing is kept between runs until the configuration file is in.
void WriteConfig() {}
