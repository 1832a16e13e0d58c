#include "commandline.h"

#include "currentmodel.h"

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
    std::string name = line;
    CurrentModel().Load(name);
}
