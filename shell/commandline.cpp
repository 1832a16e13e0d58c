#include "commandline.h"

std::string CommandLine(int argc, const char* const* argv) {
    std::string line;
    for (int i = 1; i < argc; ++i) {
        if (i > 1)
            line += ' ';
        line += argv[i];
    }
    return line;
}

// The family load opens the file here; until it is in, the named model is not opened.
void OpenModelFromCommandLine(const std::string&) {}
