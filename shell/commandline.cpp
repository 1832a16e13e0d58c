#include "commandline.h"

#include "currentmodel.h"
#include "repeatedmessages.h"

std::string CommandLine(int argc, const char* const* argv) {
    std::string line;
    for (int i = 1; i < argc; ++i) {
        if (i > 1)
            line += ' ';
        line += argv[i];
    }
    return line;
}

void OpenModelFromCommandLine(const std::string& line) {
    const RepeatedMessages oneLoad;
    std::string name = line;
    CurrentModel().Load(name);
}
