// Runs moxtool in this process as the program would, catching what it prints.
#pragma once

#include "commands.h"

#include <iostream>
#include <sstream>
#include <string>

struct ToolRun {
    int status = -1;
    std::string out;
    std::string err;
};

inline ToolRun RunTool(const Arguments& words) {
    std::ostringstream out;
    std::ostringstream err;
    std::streambuf* const oldOut = std::cout.rdbuf(out.rdbuf());
    std::streambuf* const oldErr = std::cerr.rdbuf(err.rdbuf());
    const int status = RunMoxtool(words);
    std::cout.rdbuf(oldOut);
    std::cerr.rdbuf(oldErr);
    return {status, out.str(), err.str()};
}
