#include "programstate.h"

namespace {
ProgramState state;
}

ProgramState& Program() {
    return state;
}

void ResetProgramState() {
    state = ProgramState{};
}
