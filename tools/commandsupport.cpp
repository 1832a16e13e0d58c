#include "commandsupport.h"

#include "collectinghost.h"
#include "moxreader.h"
#include "moxwriter.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

// Why `path` cannot be read as an input file, or empty when it can.
std::string InputProblem(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status))
        return path + ": no such file";
    if (!std::filesystem::is_regular_file(status))
        return path + ": not a file";
    if (!std::ifstream(path, std::ios::binary))
        return path + ": cannot open";
    return {};
}

} // namespace

bool HelpRequested(const Arguments& args) {
    for (const std::string& word : args) {
        if (word == "--help" || word == "-h")
            return true;
    }
    return false;
}

void PrintError(const std::string& text) {
    std::cerr << "moxtool: " << text << "\n";
}

int UsageError(const char* usage) {
    std::cerr << "usage: " << usage << "\n";
    return kExitFailure;
}

bool ReadModelFile(const std::string& path, FileRecord& record, std::vector<std::string>& messages,
                   std::string& error) {
    error = InputProblem(path);
    if (!error.empty())
        return false;
    CollectingHost host;
    record = READ_MOX(path, 0);
    messages = host.messages;
    if (!record.Loaded) {
        error = path + ": cannot read";
        return false;
    }
    return true;
}

bool ReadTextFile(const std::string& path, std::string& text, std::string& error) {
    error = InputProblem(path);
    if (!error.empty())
        return false;
    std::ifstream in(path, std::ios::binary);
    std::ostringstream contents;
    contents << in.rdbuf();
    if (in.bad()) {
        error = path + ": cannot read";
        return false;
    }
    text = contents.str();
    return true;
}

bool WriteModelFile(const FileRecord& record, const std::string& path, std::string& error) {
    CollectingHost host;
    if (SAVE_MOX(record, path))
        return true;
    error = path + ": " + (host.messages.empty() ? "cannot write" : host.messages.front());
    return false;
}
