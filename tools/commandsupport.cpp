#include "commandsupport.h"

#include "collectinghost.h"
#include "moxreader.h"
#include "moxwriter.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
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

CommandRun DefinePositionals(CLI::App& command, const std::vector<ArgumentName>& names,
                             int (*run)(const Arguments& args)) {
    auto values = std::make_shared<Arguments>(names.size());
    for (size_t i = 0; i < names.size(); ++i)
        command.add_option(names[i].first, (*values)[i], names[i].second)->required();
    return [values, run] { return run(*values); };
}

void PrintError(const std::string& text) {
    std::cerr << "moxtool: " << text << "\n";
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

bool LoadModelFamily(const std::string& path, bool connected, model& family, std::string& error) {
    error = InputProblem(path);
    if (!error.empty())
        return false;
    CollectingHost host;
    host.questionAnswer = connected ? MessageAnswer::Yes : MessageAnswer::No;
    std::string filename = path;
    family.Load(filename);
    if (!family.CheckMOX(0)) {
        error = path + ": cannot read";
        return false;
    }
    return true;
}

std::string LowerCaseExtension(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension;
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
