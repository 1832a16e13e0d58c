#include "framesource.h"

#include "currentmodel.h"

FrameSource CurrentFrameSource() {
    const ProgramState& program = Program();
    FrameSource source;
    source.current = &CurrentModel();
    source.view = View();
    source.options = {program.LineWeight, program.LineColour};
    source.project = &program.ProjectData;
    return source;
}
