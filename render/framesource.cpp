#include "framesource.h"

#include "currentmodel.h"

FrameSource CurrentFrameSource() {
    const ProgramState& program = Program();
    const ProjectRecord& project = program.ProjectData;
    FrameSource source;
    source.current = &CurrentModel();
    source.view = View();
    source.options = {program.LineWeight, program.LineColour};
    source.backdrop = {project.Span,     project.Length,     project.Height,
                       project.TopLeftX, project.TopLeftY,   project.TopLeftZ,
                       project.TopImage, project.FrontImage, project.LeftImage};
    return source;
}
